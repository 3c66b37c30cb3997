#pragma once

#include "host/failures/Failure.h"
#include "host/plan/RunPlan.h"
#include "host/program/PdfLibrary.h"
#include "host/workers/WorkerPool.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// What there is to tell of a document that a worker has read.
struct Reading
{
    enum Kind { Good, Differs, Failed };
    Kind kind = Failed;
    /// For standard output.
    std::string text = {};
    /// What may be a mistake, as it is; may be empty.
    std::string note = {};
    /// Why a document failed, or can never open as asked.
    Failure reason = {};

    static Reading failed(Failure reason) { return {Failed, {}, {}, std::move(reason)}; }

    std::string toRecord() const;
    static std::optional<Reading> fromRecord(const std::string& record);
};

/// Tells of the selected document of a library. What it does to the document is lost with it.
class DocumentTeller
{
public:
    virtual ~DocumentTeller() = default;
    virtual Reading tell(const std::string& file) = 0;
};

/// Lives in a worker process; the library outlives the teller.
using MakeTeller = std::function<std::unique_ptr<DocumentTeller>(TelvarPDFLibraryCPDylibCPP1311& library)>;

/// Reads one document after the other, in a process of its own: the documents may be anybody's.
class DocumentReader : public Worker
{
public:
    /// Documents, password and makeTeller must outlive the object. Throws std::runtime_error when the library
    /// cannot be used. \param input the file that holds standard input, the document "-".
    DocumentReader(const std::vector<RunPlan::Document>& documents, std::string input,
                   std::string_view password, const MakeTeller& makeTeller);

    Answer answer(std::size_t piece, WorkerSlot& slot) override;

private:
    const std::vector<RunPlan::Document>& m_documents;
    std::string m_input;
    std::string_view m_password;
    PdfLibrary m_library;
    std::unique_ptr<DocumentTeller> m_teller;
};

} // namespace host
