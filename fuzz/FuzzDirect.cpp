// What the direct reader gives of a document, against libqpdf: single objects, how it opens, and
// what is appended.
#include "Oracle.h"
#include "accounts/ReadingAccount.h"
#include "engine/syntax/ObjectParser.h"

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
        for (const QPDFExc& warning : whole.getWarnings())
            require(warning.getMessageDetail().find("reconstruct") == std::string::npos,
                    "libqpdf searches a document that is taken for sound");
        for (int number = 1; number < std::min(reader.size(), mostObjects); ++number) {
            const auto text = reader.object(number, 0);
            if (!text)
                continue;
            const std::string ours = parseObject(whole, *text).unparse();
            QPDFObjectHandle object = whole.getObject(number, 0);
            if (object.isStream()) // a section that lists all but itself, which libqpdf knows all the same
                continue;
            const std::string theirs = object.unparseResolved();
            if (whole.anyWarnings())
                return;
            requireSame(ours, theirs, "object " + std::to_string(number));
        }
    } catch (const std::runtime_error&) { // libqpdf's
    }
}

/// Whether an update has an object that is new. libqpdf gives it a number above all that it has met, those of
/// objects that nobody ever wrote included, so it depends on what was read.
bool makesObjects(const std::string& update, int size)
{
    const std::string mark = " 0 obj\n";
    for (std::size_t at = update.find(mark); at != update.npos; at = update.find(mark, at + 1)) {
        const std::size_t begin = update.find_last_not_of("0123456789", at - 1) + 1;
        if (begin < at && at - begin < 9 && std::stoi(update.substr(begin, at - begin)) >= size)
            return true;
    }
    return false;
}

void requireSameReading(const std::string& bytes, int size)
{
    ReadingAccount direct(bytes, Reading::Direct);
    ReadingAccount whole(bytes, Reading::Whole);
    require(direct.loaded() == whole.loaded(), "only one reader opens it");
    if (!direct.loaded())
        return;
    requireSame(direct.view().toStdString(), whole.view().toStdString(), "read");
    const std::string appended = whole.update(2).toStdString();
    // Reading all of it can show a fault far from what the change needs, and then nothing is appended.
    if (appended.find("code ") == appended.npos && !makesObjects(appended, size))
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
    requireSameReading(bytes, reader->size());
    return 0;
}
