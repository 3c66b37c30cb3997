#pragma once

#include "ModelDocument.h"
#include "host/workers/WorkerPool.h"

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

#include <string>
#include <string_view>

namespace host {

/// Reads the one document, in a process of its own.
class ModelReader : public Worker
{
public:
    /// All must outlive the object. Throws std::runtime_error when the library cannot be used.
    ModelReader(const std::string& file, std::string_view password, const ModelDocument::Ask& ask);

    /// "" and the model's record, or the reason why there is none.
    Answer answer(std::size_t piece, WorkerSlot& slot) override;

private:
    ModelDocument ask();

    const std::string& m_file;
    std::string_view m_password;
    const ModelDocument::Ask& m_ask;
    TelvarPDFLibraryCPDylibCPP1311 m_library;
};

} // namespace host
