#include "ModelReader.h"

#include "ViewRecord.h"
#include "host/document/DocumentLoading.h"
#include "host/document/PresentView.h"
#include "host/failures/Failure.h"
#include "host/program/InstallLayout.h"

#include <stdexcept>

namespace host {

ModelReader::ModelReader(const std::string& file, std::string_view password, const modelview::Ask& ask)
    : m_file(file), m_password(password), m_ask(ask),
      m_library(installlayout::toLibraryPath(installlayout::libraryFile()))
{
    if (!m_library.LibraryLoaded())
        throw std::runtime_error("the PDF library cannot be used: " + installlayout::libraryFile());
}

Worker::Answer ModelReader::answer(std::size_t, WorkerSlot&)
{
    if (!loadDocument(m_library, m_file, m_password))
        throw DocumentError(Failure::ofLibrary(m_library.LastErrorCode()));
    return {viewrecord::write(m_ask(PresentView(m_library)))};
}

} // namespace host
