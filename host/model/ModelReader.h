#pragma once

#include "ModelView.h"
#include "host/program/PdfLibrary.h"
#include "host/workers/WorkerPool.h"

#include <string>
#include <string_view>

namespace host {

/// Reads the one document, in a process of its own.
class ModelReader : public Worker
{
public:
    /// All must outlive the object. Throws std::runtime_error when the library cannot be used.
    ModelReader(const std::string& file, std::string_view password, const modelview::Ask& ask);

    /// The record of what was asked for (ViewRecord.h). Throws what keeps it from being told.
    Answer answer(std::size_t piece, WorkerSlot& slot) override;

private:
    const std::string& m_file;
    std::string_view m_password;
    const modelview::Ask& m_ask;
    PdfLibrary m_library;
};

} // namespace host
