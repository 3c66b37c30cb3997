#include "SetOption.h"

#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

#include <algorithm>

namespace host::setoption {

namespace {

using initialview::Key;
using initialview::ValueType;

const std::size_t nameWidth = 28;

/// \param separator stands between the rows of a list.
std::string choicesOf(const Key& key, const std::string& separator)
{
    if (key.type == ValueType::Flag)
        return "true or false";
    if (key.type == ValueType::Text)
        return std::string("\"") + initialview::actionName + "\"";
    if (key.rows.empty())
        return std::to_string(key.lowest) + " to " + std::to_string(key.highest);
    std::string text;
    for (std::size_t row = 0; row < key.rows.size(); ++row)
        text += separator + std::to_string(row) + "  " + key.rows[row];
    return text;
}

[[noreturn]] void refuseKey(const std::string& name)
{
    std::vector<std::string> names;
    std::string list;
    for (const Key& key : initialview::keys) {
        names.emplace_back(key.name);
        list += std::string("\n  ") + key.name;
    }
    throw UsageError("unknown setting \"" + name + "\"" + suggestion::didYouMean(name, names) +
                     "\nthe settings are:" + list);
}

[[noreturn]] void refuseValue(const Key& key, const std::string& value)
{
    const std::string choices = choicesOf(key, "\n  ");
    std::vector<std::string> known(key.rows.begin(), key.rows.end());
    if (key.type == ValueType::Flag)
        known = {"true", "false", "yes", "no"};
    throw UsageError(std::string(key.name) + " cannot be \"" + value + "\"" +
                     suggestion::didYouMean(value, known) + "\nit takes" +
                     (choices.starts_with('\n') ? "" : " ") + choices);
}

bool isOneOf(const QString& value, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const char* word) { return value.compare(word, Qt::CaseInsensitive) == 0; });
}

QVariant flagOf(const Key& key, const std::string& value)
{
    const QString text = QString::fromStdString(value).trimmed();
    if (isOneOf(text, {"true", "yes", "on", "1"}))
        return true;
    if (isOneOf(text, {"false", "no", "off", "0"}))
        return false;
    refuseValue(key, value);
}

QVariant numberOf(const Key& key, const std::string& value)
{
    const QString text = QString::fromStdString(value).trimmed();
    bool whole = false;
    const int number = text.toInt(&whole);
    if (whole && number >= key.lowest && number <= key.highest)
        return number;
    const auto label = std::find_if(key.rows.begin(), key.rows.end(), [&](const char* each) {
        return text.compare(each, Qt::CaseInsensitive) == 0;
    });
    if (label == key.rows.end())
        refuseValue(key, value);
    return static_cast<int>(label - key.rows.begin());
}

QVariant valueOf(const Key& key, const std::string& value)
{
    if (key.type == ValueType::Flag)
        return flagOf(key, value);
    if (key.type == ValueType::Number)
        return numberOf(key, value);
    if (value != initialview::actionName)
        refuseValue(key, value);
    return QString(initialview::actionName);
}

} // namespace

void apply(const std::string& word, SettingsMap& map)
{
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos)
        throw UsageError("\"" + word + "\" is not a setting: it takes the form KEY=VALUE");
    const std::string name = word.substr(0, equals);
    const Key* const key = initialview::findKey(name);
    if (key == nullptr)
        refuseKey(name);
    map.insert(key->name, valueOf(*key, word.substr(equals + 1)));
}

std::vector<std::string> wordsOf(const SettingsMap& map, std::vector<std::string>& leftOut)
{
    std::vector<std::string> words;
    for (const Key& key : initialview::keys) {
        if (key.type == ValueType::Text)
            continue;
        const QVariant value = map.value(key.name);
        const int number = value.toInt();
        const std::string name = key.name;
        if (!value.isValid() || number < key.lowest || number > key.highest)
            leftOut.push_back(name);
        else if (key.type == ValueType::Flag)
            words.push_back(name + (value.toBool() ? "=true" : "=false"));
        else
            words.push_back(name + "=" + std::to_string(number));
    }
    return words;
}

std::string describeKeys()
{
    std::string text;
    for (const Key& key : initialview::keys) {
        if (key.type == ValueType::Text)
            continue;
        const std::string name = key.name;
        const std::string choices = choicesOf(key, "\n      ");
        const std::string space(name.size() < nameWidth ? nameWidth - name.size() : 1, ' ');
        text.append("  ")
            .append(name)
            .append(choices.starts_with('\n') ? "" : space)
            .append(choices)
            .append("\n");
    }
    return text;
}

} // namespace host::setoption
