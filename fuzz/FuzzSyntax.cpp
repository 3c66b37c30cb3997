// Values as the library's own parser reads them, against libqpdf's.
#include "Oracle.h"
#include "accounts/ObjectAccount.h"
#include "engine/files/EngineError.h"
#include "engine/syntax/ObjectParser.h"
#include "engine/syntax/ObjectSerializer.h"
#include "engine/syntax/SyntaxScanner.h"

namespace {

using namespace fuzz;
using namespace engine;

std::string byLibqpdf(const std::string& text)
{
    return objectAccount([&](QPDF& pdf) { return QPDFObjectHandle::parse(&pdf, text); });
}

/// Whether the text is what the parser is given: one value, strictly written.
bool isValue(std::string_view text)
{
    SyntaxScanner scanner(text);
    return scanner.skipValue() == SyntaxScanner::Outcome::Complete && scanner.atEnd();
}

/// What is written of an object means the same object.
void requireWrittenAlike(const std::string& text, const std::string& account)
{
    std::string written;
    objectAccount([&](QPDF& pdf) {
        QPDFObjectHandle object = parseObject(pdf, text);
        try {
            written = object.isIndirect() ? text : ObjectSerializer().write(object);
        } catch (const EngineError&) { // nested too deeply
        }
        return object;
    });
    if (!written.empty())
        requireSame(account, byLibqpdf(written), "written as " + written);
}

/// The entries of a dictionary are those that libqpdf has, but for null.
void requireSameEntries(const std::string& text)
{
    const auto entries = dictionaryEntries(text);
    if (!entries)
        return;
    objectAccount([&](QPDF& pdf) {
        QPDFObjectHandle dictionary = QPDFObjectHandle::parse(&pdf, text);
        require(dictionary.isDictionary(), "entries of what is no dictionary");
        for (const auto& [key, value] : *entries) {
            const std::vector<QPDFObjectHandle> item{dictionary.getKey("/" + std::string(key))};
            requireSame(byLibqpdf("[" + std::string(value) + "]"),
                        objectAccount([&](QPDF&) { return QPDFObjectHandle::newArray(item); }),
                        "entry " + std::string(key));
        }
        return dictionary;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(textOf(data, size));
    if (!isValue(text))
        return 0;
    const std::string account = byLibqpdf(text);
    requireSame(objectAccount([&](QPDF& pdf) { return parseObject(pdf, text); }), account, "parsed");
    const bool isClean = account.find('\n') == account.npos;
    if (isClean) {
        requireWrittenAlike(text, account);
        requireSameEntries(text);
    }
    return 0;
}
