#include "ReadingTrouble.h"

#include "DocumentOpening.h"

namespace engine {

namespace {

// What libqpdf calls the places of which it warns.
const std::string objectName = "object ";
const std::string trailerName = "trailer";
const char* const lengthRecovered = "recovered stream length";

/// Whether libqpdf complains of something else than the content of an object: that it lies elsewhere, that
/// the end of a stream was searched for and found, what a trailer says of its section, or that of two entries
/// with one key the last one counts.
bool isHarmless(const std::string& complaint)
{
    return (complaint.starts_with("expected ") && complaint.ends_with(" obj")) ||
           complaint == "expected endstream" || complaint == "attempting to recover stream length" ||
           complaint.starts_with(lengthRecovered) ||
           complaint.find("trailer dictionary") != std::string::npos ||
           complaint.starts_with("dictionary has duplicated key");
}

} // namespace

void ReadingTrouble::collect(QPDF& pdf)
{
    for (const QPDFExc& warning : pdf.getWarnings()) {
        const std::string& detail = warning.getMessageDetail();
        m_any = true;
        m_rebuilt = m_rebuilt || detail.find("reconstruct cross-reference") != std::string::npos;
        m_lengthsRecovered = m_lengthsRecovered || detail.starts_with(lengthRecovered);
        m_memoryWasShort = m_memoryWasShort || tellsOfShortMemory(warning);
        noteMisread(warning);
    }
}

void ReadingTrouble::noteMisread(const QPDFExc& warning)
{
    const std::string& place = warning.getObject();
    if ((place == trailerName || place.starts_with(objectName)) && !isHarmless(warning.getMessageDetail()))
        m_misread.insert(place);
}

bool ReadingTrouble::misread(QPDFObjGen object) const
{
    return m_misread.contains(objectName + object.unparse(' '));
}

bool ReadingTrouble::trailerMisread() const
{
    return m_misread.contains(trailerName);
}

} // namespace engine
