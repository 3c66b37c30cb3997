#include "Arguments.h"
#include "Operations.h"
#include "Session.h"
#include "engine/document/Metadata.h"
#include "engine/document/Text.h"

#include <array>

namespace engine::operations {

namespace {

struct CatalogEntry
{
    std::string_view key;
    bool isText; ///< Else a name.
};

constexpr std::array entries{CatalogEntry{"/Lang", true}, CatalogEntry{"/PageMode", false},
                             CatalogEntry{"/PageLayout", false}, CatalogEntry{"/Version", false}};

const CatalogEntry& entryOf(std::wstring_view name)
{
    const std::string key = "/" + utf8FromWide(name);
    for (const CatalogEntry& entry : entries)
        if (entry.key == key)
            return entry;
    throw EngineError(ErrorCode::BadArgument);
}

QPDFObjectHandle stored(Document& document, const CatalogEntry& entry)
{
    return document.key(document.catalog(), std::string(entry.key));
}

} // namespace

std::wstring GetCatalogInformation(Session& session, std::wstring_view key)
{
    Document& document = session.document().document;
    const CatalogEntry& entry = entryOf(key);
    QPDFObjectHandle value = stored(document, entry);
    if (entry.isText)
        return value.isString() ? wideFromUtf8(value.getUTF8Value()) : std::wstring();
    return value.isName() ? wideFromUtf8(value.getName().substr(1)) : std::wstring();
}

int SetCatalogInformation(Session& session, std::wstring_view key, std::wstring_view value)
{
    Document& document = session.document().document;
    const CatalogEntry& entry = entryOf(key);
    require(entry.isText, ErrorCode::BadArgument);
    const std::string text = utf8FromWide(value);
    if (!saysText(stored(document, entry), text))
        document.setCatalogKey(std::string(entry.key), entryForText(text));
    return 1;
}

std::wstring GetDocumentMetadata(Session& session)
{
    return Metadata(session.document().document).packet();
}

int SetDocumentMetadata(Session& session, std::wstring_view packet)
{
    OpenDocument& open = session.document();
    if (Metadata(open.document).packet() == packet)
        return 1;
    open.readWhole();
    Metadata(open.document).replace(packet);
    return 1;
}

} // namespace engine::operations
