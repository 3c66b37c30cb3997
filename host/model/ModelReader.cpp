#include "ModelReader.h"

#include "host/document/DocumentLoading.h"
#include "host/document/PresentView.h"
#include "host/program/InstallLayout.h"
#include "host/workers/Record.h"

#include "pdflibrary/ErrorCodes.h"

#include <stdexcept>

namespace host {

ModelReader::ModelReader(const std::string& file, std::string_view password, const ModelDocument::Ask& ask)
    : m_file(file), m_password(password), m_ask(ask),
      m_library(installlayout::toLibraryPath(installlayout::libraryFile()))
{
    if (!m_library.LibraryLoaded())
        throw std::runtime_error("the PDF library cannot be used: " + installlayout::libraryFile());
}

Worker::Answer ModelReader::answer(std::size_t, WorkerSlot&)
{
    try {
        return {RecordWriter().add("").add(ask().toRecord()).bytes()};
    } catch (const std::runtime_error& error) {
        return {RecordWriter().add(error.what()).add("").bytes()};
    }
}

ModelDocument ModelReader::ask()
{
    if (!loadDocument(m_library, m_file, m_password))
        throw std::runtime_error(std::string(engine::errorText(m_library.LastErrorCode())));
    return m_ask(PresentView(m_library));
}

} // namespace host
