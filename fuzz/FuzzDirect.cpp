// What the direct reader gives of a document, against libqpdf: single objects, how it opens, and what is appended.
#include "Oracle.h"
#include "engine/syntax/ObjectParser.h"
#include "support/ReadingAccount.h"

#include <algorithm>

namespace {

using namespace fuzz;
using namespace engine;

const int mostObjects = 300;

/// All objects that the reader gives. After a complaint libqpdf may have found others by a search.
void requireSameObjects(const std::string& bytes, DirectReader& reader)
{
    QPDF whole;
    whole.setSuppressWarnings(true);
    try {
        whole.processMemoryFile("", bytes.data(), bytes.size());
        for (int number = 1; number < std::min(reader.size(), mostObjects); ++number) {
            const auto text = reader.object(number, 0);
            if (!text)
                continue;
            const std::string ours = parseObject(whole, *text).unparse();
            const std::string theirs = whole.getObject(number, 0).unparseResolved();
            if (whole.anyWarnings())
                return;
            requireSame(ours, theirs, "object " + std::to_string(number));
        }
    } catch (const std::runtime_error&) { // libqpdf's
    }
}

void requireSameReading(const std::string& bytes)
{
    ReadingAccount direct(bytes, Reading::Direct);
    ReadingAccount whole(bytes, Reading::Whole);
    require(direct.loaded() == whole.loaded(), "only one reader opens it");
    if (!direct.loaded())
        return;
    requireSame(direct.view().toStdString(), whole.view().toStdString(), "read");
    const std::string appended = whole.update(2).toStdString();
    // Reading all of it can show a fault far from what the change needs, and then nothing is appended.
    if (appended.find("code ") == appended.npos)
        requireSame(direct.update(2).toStdString(), appended, "appended");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(textOf(data, size));
    const auto reader = size > 0 ? DirectReader::open(ByteSource::fromBytes(bytes)) : nullptr;
    if (!reader || !reader->skeleton())
        return 0;
    requireSameObjects(bytes, *reader);
    requireSameReading(bytes);
    return 0;
}
