#include "Operations.h"
#include "Session.h"
#include "engine/document/Text.h"
#include "pdflibrary/ViewNumbers.h"

namespace engine::operations {

namespace {

const int italicFlag = 1; // ISO 32000's, in /F
const int boldFlag = 2;

} // namespace

int OutlineCount(Session& session)
{
    return session.document().outline.count();
}

int GetFirstOutline(Session& session)
{
    return session.document().outline.first();
}

int GetFirstChildOutline(Session& session, int outlineId)
{
    return session.document().outline.firstChild(outlineId);
}

int GetNextOutline(Session& session, int outlineId)
{
    return session.document().outline.next(outlineId);
}

std::wstring OutlineTitle(Session& session, int outlineId)
{
    OpenDocument& open = session.document();
    QPDFObjectHandle title = open.document.key(open.outline.entry(outlineId), "/Title");
    return title.isString() ? wideFromUtf8(title.getUTF8Value()) : std::wstring();
}

int GetOutlinePage(Session& session, int outlineId)
{
    OpenDocument& open = session.document();
    const QPDFObjectHandle entry = open.outline.entry(outlineId);
    QPDFObjectHandle destination = open.document.key(entry, "/Dest");
    const auto target =
        destinationTarget(open.document, destination.isNull() ? open.document.key(entry, "/A") : destination);
    const auto shown = target ? readDestination(open.document, *target, open.pages) : std::nullopt;
    return shown ? shown->page : 0;
}

int GetOutlineStyle(Session& session, int outlineId)
{
    OpenDocument& open = session.document();
    const QPDFObjectHandle entry = open.outline.entry(outlineId);
    QPDFObjectHandle flags = open.document.key(entry, "/F");
    QPDFObjectHandle shownBelow = open.document.key(entry, "/Count");
    const long long style = flags.isInteger() ? flags.getIntValue() : 0;
    return ((style & italicFlag) != 0 ? pdflibrary::ItalicOutline : 0) |
           ((style & boldFlag) != 0 ? pdflibrary::BoldOutline : 0) |
           (shownBelow.isInteger() && shownBelow.getIntValue() > 0 ? pdflibrary::OpenOutline : 0);
}

} // namespace engine::operations
