#include "SettingsWords.h"

#include "host/view/ViewWords.h"

#include "EditInitialView/InitialViewSettings.h"

#include <string_view>

namespace host {

using initialview::Key;
using initialview::ValueType;
using viewwords::line;
using viewwords::yesOrNo;

namespace {

namespace key = initialview::key;

const std::string unchanged = "unchanged";

/// As the action reads it: a viewer preference is handed to the library as a number.
bool isOn(const Key& key, const QVariant& stored)
{
    return std::string_view(key.name) == key::OpenInFullScreen ? stored.toBool() : stored.toInt() == 1;
}

std::string rowInWords(const Key& key, const QVariant& stored)
{
    const char* label = viewwords::labelAt(key.rows, stored.toInt(), nullptr);
    return label != nullptr ? label : "row " + stored.toString().toStdString() + ", which does not exist";
}

std::string valueInWords(const Key& key, const QVariant& stored)
{
    if (key.type == ValueType::Flag)
        return yesOrNo(isOn(key, stored));
    return key.rows.empty() ? std::to_string(stored.toInt()) : rowInWords(key, stored);
}

/// Without a page to open at, page and magnification of a document stay as they are.
bool opensNowhere(const Key& key, const SettingsMap& settings)
{
    const std::string_view name = key.name;
    return (name == key::OpenToPage || name == key::Magnification) &&
           settings.value(key::OpenToPage).toInt() < initialview::firstPage;
}

} // namespace

std::string settingsInWords(const SettingsMap& settings)
{
    std::string text;
    for (const Key& key : initialview::keys) {
        const QVariant stored = settings.value(key.name);
        if (key.isGroup() && !stored.toBool())
            text += line(key.label, unchanged);
        if (key.group != nullptr && settings.value(key.group).toBool())
            text += line(key.label, opensNowhere(key, settings) ? unchanged : valueInWords(key, stored));
    }
    return text;
}

} // namespace host
