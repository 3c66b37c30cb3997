#include "SettingsNotes.h"

#include "EditInitialView/InitialViewSettings.h"

namespace host::settingsnotes {

namespace {

using initialview::Key;
namespace key = initialview::key;

bool isOn(const SettingsMap& settings, const char* name)
{
    return settings.value(name).toBool();
}

/// The action writes no open action for a page below the first.
bool opensAtPage(const SettingsMap& settings)
{
    return isOn(settings, key::LayoutAndMagn) &&
           settings.value(key::OpenToPage).toInt() >= initialview::firstPage;
}

/// Empty when the number is one that the dialog offers, or none.
std::string oddNumber(const Key& key, const QVariant& value)
{
    bool whole = false;
    const int number = value.toString().toInt(&whole);
    const bool unset = !value.isValid() || (key.name == key::OpenToPage && number < key.lowest);
    if (key.type != initialview::ValueType::Number || unset ||
        (whole && number >= key.lowest && number <= key.highest))
        return {};
    return std::string(key.name) + " is " + value.toString().toStdString() + ", not a number from " +
           std::to_string(key.lowest) + " to " + std::to_string(key.highest);
}

bool isLeftOutRow(const Key& key, const SettingsMap& settings)
{
    if (key.rows.empty() || key.group == nullptr || !isOn(settings, key.group) || settings.contains(key.name))
        return false;
    return key.name != key::Magnification || opensAtPage(settings);
}

} // namespace

std::vector<std::string> about(const SettingsMap& settings)
{
    std::vector<std::string> notes;
    const auto add = [&notes](std::string note) {
        if (!note.empty())
            notes.push_back(std::move(note));
    };
    for (const Key& key : initialview::keys)
        add(oddNumber(key, settings.value(key.name)));
    if (!isOn(settings, key::LayoutAndMagn) && !isOn(settings, key::ViewerPrefs))
        add("neither LayoutAndMagnCheckBox nor ViewerPrefsCheckBox is on, so nothing will be changed");
    else if (isOn(settings, key::LayoutAndMagn) && !opensAtPage(settings))
        add("OpenToPageSpinBox is not set, so page and magnification stay as they are");
    add(aboutRowsLeftOut(settings));
    return notes;
}

std::string aboutRowsLeftOut(const SettingsMap& settings)
{
    std::string text;
    for (const Key& key : initialview::keys)
        if (isLeftOutRow(key, settings))
            text += (text.empty() ? "" : ", ") + std::string(key.name) + " (\"" + key.rows.front() + "\")";
    return text.empty() ? text : "left out, and so set to the first row: " + text;
}

std::string aboutPage(const SettingsMap& settings, int pageCount)
{
    const int page = settings.value(key::OpenToPage).toInt();
    if (!opensAtPage(settings) || page <= pageCount)
        return {};
    return "it has " + std::to_string(pageCount) + (pageCount == 1 ? " page" : " pages") +
           ", so it opens at page 1 instead of " + std::to_string(page);
}

} // namespace host::settingsnotes
