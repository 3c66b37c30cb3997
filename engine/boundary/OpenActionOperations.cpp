#include "Arguments.h"
#include "Operations.h"
#include "Session.h"
#include "engine/document/Text.h"
#include "pdflibrary/ViewNumbers.h"

namespace engine::operations {

namespace {

const wchar_t* const goTo = L"GoTo";
const wchar_t* const unknown = L"Unknown";

} // namespace

std::wstring GetActionType(Session& session, int actionId)
{
    Document& document = session.document().document;
    require(actionId == pdflibrary::OpenAction, ErrorCode::BadArgument);
    QPDFObjectHandle action = document.key(document.catalog(), "/OpenAction");
    if (action.isNull())
        return {};
    if (action.isArray() || action.isName() || action.isString())
        return goTo;
    QPDFObjectHandle type = document.key(action, "/S");
    return type.isName() ? wideFromUtf8(type.getName().substr(1)) : unknown;
}

int SetDestValue(Session& session, int destId, int valueKey, double value)
{
    OpenDocument& open = session.document();
    const Destination before = session.destination(destId);
    require(valueKey == pdflibrary::DestinationZoom && before.type == pdflibrary::Zoomed && value >= 0 &&
                isNumber(value / 100),
            ErrorCode::BadArgument);
    const auto target = openActionTarget(open.document);
    require(target && readDestination(open.document, *target, open.pages) == before,
            ErrorCode::UnknownDestination);
    const QPDFObjectHandle array = magnified(open.document, target->array, value);
    auto after = readDestination(open.document, {array, before.name}, open.pages);
    if (!after || *after == before)
        return 1;
    redirectOpenAction(open.document, array);
    after->name.clear();
    session.changeDestination(destId, *after);
    return 1;
}

} // namespace engine::operations
