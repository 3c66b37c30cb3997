#include "PageNodes.h"

#include "Document.h"

#include <climits>

namespace engine {

KidKind kindOf(Document& document, QPDFObjectHandle object)
{
    if (!object.isDictionary())
        return KidKind::Neither;
    if (document.kids(object))
        return KidKind::Node;
    return document.key(object, "/Type").isNameAndEquals("/Pages") ? KidKind::Neither : KidKind::Page;
}

std::optional<int> statedCount(Document& document, const QPDFObjectHandle& node)
{
    QPDFObjectHandle count = document.key(node, "/Count");
    if (!count.isInteger() || count.getIntValue() < 0 || count.getIntValue() > INT_MAX)
        return std::nullopt;
    return static_cast<int>(count.getIntValue());
}

std::optional<KidGlimpse> glimpse(Document& document, const Kids& kids, int kid)
{
    const std::optional<std::string_view> text = document.unreadKid(kids, kid);
    return text ? glimpseOf(*text) : std::nullopt;
}

std::optional<int> pagesUnder(Document& document, const Kids& kids, int kid)
{
    const std::optional<KidGlimpse> seen = glimpse(document, kids, kid);
    if (seen && seen->kind == KidKind::Page)
        return 1;
    if (seen && seen->kind == KidKind::Node && seen->count)
        return seen->count;
    const QPDFObjectHandle object = document.kid(kids, kid);
    switch (kindOf(document, object)) {
    case KidKind::Page:
        return 1;
    case KidKind::Node:
        return statedCount(document, object);
    case KidKind::Neither:
        break;
    }
    return std::nullopt;
}

} // namespace engine
