#include "DocumentReader.h"

#include "host/cell/Reach.h"
#include "host/document/DocumentLoading.h"
#include "host/workers/Record.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"

#include <stdexcept>

namespace host {

std::string Reading::toRecord() const
{
    return RecordWriter()
        .add(static_cast<std::int64_t>(kind))
        .add(text)
        .add(note)
        .add(static_cast<std::int64_t>(reason.code))
        .add(reason.text)
        .bytes();
}

std::optional<Reading> Reading::fromRecord(const std::string& record)
{
    RecordReader reader(record);
    const std::int64_t kind = reader.number();
    std::string text = reader.text();
    std::string note = reader.text();
    const std::int64_t code = reader.number();
    std::string reason = reader.text();
    if (!reader.complete() || kind < Good || kind > Failed || !isReasonCode(code))
        return std::nullopt;
    return Reading{static_cast<Kind>(kind),
                   std::move(text),
                   std::move(note),
                   {static_cast<ReasonCode>(code), std::move(reason)}};
}

DocumentReader::DocumentReader(const std::vector<RunPlan::Document>& documents, std::string input,
                               std::string_view password, const MakeTeller& makeTeller)
    : m_documents(documents), m_input(std::move(input)), m_password(password)
{
    m_teller = makeTeller(m_library);
}

Worker::Answer DocumentReader::answer(std::size_t piece, WorkerSlot&)
{
    const RunPlan::Document& document = m_documents[piece];
    if (document.problem)
        return {Reading::failed(document.problem).toRecord()};
    const std::string& file = document.name == RunDestination::standardStream ? m_input : document.name;
    if (!loadDocument(m_library, file, m_password)) {
        const int code = m_library.LastErrorCode();
        return {Reading::failed(Failure::ofLibrary(code)).toRecord(),
                code == static_cast<int>(engine::ErrorCode::OutOfMemory), isOutOfReach(file)};
    }
    const int id = m_library.SelectedDocument();
    Reading reading;
    try {
        reading = m_teller->tell(document.name);
    } catch (const std::runtime_error&) {
        reading = Reading::failed(Failure::ofException());
    }
    m_library.RemoveDocument(id);
    return {reading.toRecord()};
}

} // namespace host
