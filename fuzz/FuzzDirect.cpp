// What the direct reader gives of a document, against libqpdf: single objects, how it opens, and what is appended.
#include "Oracle.h"
#include "engine/syntax/ObjectParser.h"
#include "support/ReadingAccount.h"

#include <algorithm>

namespace {

using namespace fuzz;
using namespace engine;

const int mostObjects = 300;

/// The objects as a document of its own gives them that has nothing else. What it complains about is left to libqpdf.
void requireSameObjects(const std::string& bytes, DirectReader& reader, const std::string& skeleton)
{
    QPDF parts;
    QPDF whole;
    parts.setSuppressWarnings(true);
    whole.setSuppressWarnings(true);
    try {
        parts.processMemoryFile("", skeleton.data(), skeleton.size());
        whole.processMemoryFile("", bytes.data(), bytes.size());
        for (int number = 1; number < std::min(reader.size(), mostObjects); ++number) {
            const auto text = reader.object(number, 0);
            if (!text)
                continue;
            const std::string kept(*text);
            QPDFObjectHandle object = parseObject(parts, kept);
            const std::string theirs = whole.getObject(number, 0).unparseResolved();
            if (parts.anyWarnings() || whole.anyWarnings())
                return;
            requireSame(object.unparse(), theirs, "object " + std::to_string(number));
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
    const auto reader = DirectReader::open(ByteSource::fromBytes(bytes));
    const auto skeleton = reader ? reader->skeleton() : std::nullopt;
    if (!skeleton)
        return 0;
    requireSameObjects(bytes, *reader, *skeleton);
    requireSameReading(bytes);
    return 0;
}
