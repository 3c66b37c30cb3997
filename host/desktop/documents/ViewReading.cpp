#include "ViewReading.h"

#include "host/change/ViewJson.h"
#include "host/desktop/texts/ViewTexts.h"
#include "host/terminal/UsageError.h"

#include <array>

namespace host::desktop {

namespace {

const std::array names{"pageMode", "pageLayout", "viewerPreferences", "title", "lang"};

/// One name at a time, so that what is not understood costs only itself.
void take(const QString& name, const QJsonValue& value, ViewChange& view)
{
    try {
        view.add(viewjson::parse({{name, value}}));
    } catch (const UsageError&) { // left out
    }
}

} // namespace

ViewReading ViewReading::fromJson(const QJsonObject& object)
{
    ViewReading reading;
    for (const char* name : names)
        if (object.contains(name))
            take(name, object.value(name), reading.view);
    if (!object.contains("openAction"))
        return reading;
    const QJsonObject action = object.value("openAction").toObject();
    const QString kind = action.value("action").toString();
    if (!kind.isEmpty() && kind != "GoTo") {
        reading.action = kind;
        reading.view.set(ViewEntry::OpenPage, Unset());
    } else {
        take("openAction", object.value("openAction"), reading.view);
    }
    return reading;
}

QString ViewReading::textOf(ViewEntry entry) const
{
    if (entry == ViewEntry::OpenPage && !action.isEmpty())
        return viewtexts::actionOf(action);
    return viewtexts::valueOf(entry, view[entry].value_or(Unset()));
}

} // namespace host::desktop
