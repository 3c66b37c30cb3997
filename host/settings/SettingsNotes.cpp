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

/// The entry that a setting counts in: the last that switches its group on, null for none.
const ActionEntry* lastWith(const std::vector<ActionEntry>& entries, const char* group)
{
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
        if (isOn(entry->settings, group))
            return &*entry;
    return nullptr;
}

bool isLeftOutRow(const Key& key, const std::vector<ActionEntry>& entries)
{
    const ActionEntry* entry = key.rows.empty() ? nullptr : lastWith(entries, key.group);
    return entry != nullptr && !entry->settings.contains(key.name) &&
           (key.name != key::Magnification || opensAtPage(entry->settings));
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
    return notes;
}

std::string aboutRowsLeftOut(const std::vector<ActionEntry>& entries)
{
    std::string text;
    for (const Key& key : initialview::keys)
        if (isLeftOutRow(key, entries))
            text += (text.empty() ? "" : ", ") + std::string(key.name) + " (\"" + key.rows.front() + "\")";
    return text.empty() ? text : "left out, and so set to the first row: " + text;
}

int openingPage(const std::vector<ActionEntry>& entries)
{
    int page = 0;
    for (const ActionEntry& entry : entries)
        if (opensAtPage(entry.settings))
            page = entry.settings.value(key::OpenToPage).toInt();
    return page;
}

std::string aboutPage(const std::vector<ActionEntry>& entries, int pageCount)
{
    const int page = openingPage(entries);
    if (page <= pageCount)
        return {};
    return "it has " + std::to_string(pageCount) + (pageCount == 1 ? " page" : " pages") +
           ", so it opens at page 1 instead of " + std::to_string(page);
}

} // namespace host::settingsnotes
