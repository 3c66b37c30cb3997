#include "ModelReader.h"

#include "ViewRecord.h"
#include "host/document/DocumentLoading.h"
#include "host/document/PresentView.h"
#include "host/failures/Failure.h"

namespace host {

ModelReader::ModelReader(const std::string& file, std::string_view password, const modelview::Ask& ask)
    : m_file(file), m_password(password), m_ask(ask)
{}

Worker::Answer ModelReader::answer(std::size_t, WorkerSlot&)
{
    if (!loadDocument(m_library, m_file, m_password))
        throw DocumentError(Failure::ofLibrary(m_library.LastErrorCode()));
    return {viewrecord::write(m_ask(PresentView(m_library)))};
}

} // namespace host
