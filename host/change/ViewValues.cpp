#include "ViewValues.h"

#include "LanguageTag.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include "pdflibrary/ViewNumbers.h"

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace host::viewvalues {

namespace {

using viewentries::Description;
using viewentries::Kind;
using viewentries::Name;

const std::string unset = "unset";

/// The word without case and hyphens, which do not count.
std::string plain(const std::string& word)
{
    std::string text;
    for (const char each : word)
        if (each != '-')
            text += each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
    return text;
}

/// What the option takes besides words.
std::string numbersOf(const Description& entry)
{
    switch (entry.kind) {
    case Kind::Count:
        return "a number from 1";
    case Kind::Page:
        return "a page's number from 1";
    case Kind::Magnification:
        return "a percentage from 1% to 6400%";
    case Kind::Language:
        return "a language tag, as \"en\" or \"pt-BR\"";
    default:
        return {};
    }
}

std::string choicesOf(const Description& entry)
{
    std::string text = numbersOf(entry);
    for (const std::string& word : viewentries::words(entry))
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

/// What people write who know it from elsewhere.
struct Habit
{
    Kind kind;
    const char* word;
    const char* meant;
};

const std::array<Habit, 18> habits{{{Kind::Flag, "true", "yes"},
                                    {Kind::Flag, "on", "yes"},
                                    {Kind::Flag, "1", "yes"},
                                    {Kind::Flag, "false", "no"},
                                    {Kind::Flag, "off", "no"},
                                    {Kind::Flag, "0", "no"},
                                    {Kind::Page, "first", "1"},
                                    {Kind::Page, "0", "1"},
                                    {Kind::Page, "end", "last"},
                                    {Kind::Page, "none", "unset"},
                                    {Kind::Magnification, "inherit", "default"},
                                    {Kind::Magnification, "actualsize", "100%"},
                                    {Kind::Name, "continuous", "one-column"},
                                    {Kind::Name, "facing", "two-page-left"},
                                    {Kind::Name, "lefttoright", "l2r"},
                                    {Kind::Name, "righttoleft", "r2l"},
                                    {Kind::Name, "off", "none"},
                                    {Kind::Name, "default", "unset"}}};

template <class Number>
std::optional<Number> numberFrom(const std::string& word)
{
    Number number = 0;
    const char* end = word.data() + word.size();
    const auto [rest, problem] = std::from_chars(word.data(), end, number);
    return problem == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

/// With or without its sign.
std::optional<double> percentFrom(const std::string& word)
{
    return numberFrom<double>(word.substr(0, word.size() - (word.ends_with('%') ? 1 : 0)));
}

/// The shortest text that reads as the same number.
std::string shortest(double number)
{
    std::array<char, 32> text{};
    const auto [end, problem] = std::to_chars(text.data(), text.data() + text.size(), number);
    return std::string(text.data(), end);
}

/// What may be meant, as far as the option takes it.
std::string meantBy(const Description& entry, const std::string& word)
{
    const std::string plainWord = plain(word);
    for (const Habit& habit : habits)
        if (entry.kind == habit.kind && plainWord == habit.word &&
            (entry.kind != Kind::Name || nameOf(entry.names, habit.meant) != nullptr || habit.meant == unset))
            return habit.meant;
    std::string tag = word;
    std::replace(tag.begin(), tag.end(), '_', '-');
    if (entry.kind == Kind::Language && isLanguageTag(tag))
        return tag;
    const std::optional<double> percent =
        entry.kind == Kind::Magnification ? percentFrom(word) : std::nullopt;
    if (percent && *percent > 0)
        return shortest(std::clamp(*percent, viewentries::lowestPercent, viewentries::highestPercent)) + "%";
    return suggestion::nearest(word, viewentries::words(entry));
}

[[noreturn]] void refuse(const Description& entry, const std::string& word)
{
    const std::string meant = meantBy(entry, word);
    throw UsageError("--" + std::string(entry.option) + " cannot be \"" + word + "\"" +
                     (meant.empty() ? "" : "; did you mean \"" + meant + "\"?") + "\nit takes " +
                     choicesOf(entry));
}

int wholeNumber(const Description& entry, const std::string& word)
{
    const std::optional<int> number = numberFrom<int>(word);
    if (!number || *number < 1)
        refuse(entry, word);
    return *number;
}

Magnification magnification(const Description& entry, const std::string& word)
{
    if (const Name* name = nameOf(viewentries::magnifications(), word))
        return {name->number, 0};
    const std::optional<double> percent = percentFrom(word);
    // Not the other way round: a NaN fails every comparison.
    if (!percent || !(*percent >= viewentries::lowestPercent && *percent <= viewentries::highestPercent))
        refuse(entry, word);
    return {viewentries::magnifications().front().number, storedPercent(*percent)};
}

int nameNumber(const Description& entry, const std::string& word)
{
    const Name* name = nameOf(entry.names, word);
    if (name == nullptr)
        refuse(entry, word);
    return name->number;
}

int flag(const Description& entry, const std::string& word)
{
    const std::string answer = plain(word);
    if (answer != "yes" && answer != "no")
        refuse(entry, word);
    return answer == "yes" ? 1 : 0;
}

ViewValue page(const Description& entry, const std::string& word)
{
    if (plain(word) == "last")
        return LastPage();
    return wholeNumber(entry, word);
}

ViewValue title(const Description& entry, const std::string& word)
{
    if (word.empty())
        return Unset();
    const QString text = QString::fromStdString(word);
    // What is no UTF-8 comes back as another character.
    if (text.toStdString() != word)
        throw UsageError("--" + std::string(entry.option) + " cannot be \"" + word +
                         "\": it is not in UTF-8");
    if (std::any_of(text.begin(), text.end(),
                    [](QChar each) { return each.category() == QChar::Other_Control; }))
        throw UsageError("--" + std::string(entry.option) + " cannot be \"" + word +
                         "\": it holds control characters, such as line feeds");
    if (std::any_of(text.begin(), text.end(), [](QChar each) { return each.unicode() >= 0xfffe; }))
        throw UsageError("--" + std::string(entry.option) + " cannot be \"" + word +
                         "\": it holds U+FFFE or U+FFFF, which are no characters");
    return word;
}

std::string language(const Description& entry, const std::string& word)
{
    if (!isLanguageTag(word))
        refuse(entry, word);
    return word;
}

std::string wordOf(const Magnification& value)
{
    if (value.percent != 0)
        return shortest(value.percent) + "%";
    const Name* name = nameOf(viewentries::allMagnifications(), value.type);
    std::string word = name != nullptr ? name->word : "unknown";
    if (value.type != pdflibrary::FitRectangle)
        return word;
    for (const double side : value.rectangle)
        word += " " + shortest(side);
    return word;
}

std::string wordOf(const Description& entry, int number)
{
    if (entry.kind == Kind::Flag)
        return number != 0 ? "yes" : "no";
    if (entry.kind != Kind::Name)
        return std::to_string(number);
    const Name* name = nameOf(entry.names, number);
    return name != nullptr ? name->word : "unknown";
}

} // namespace

double storedPercent(double percent)
{
    return std::round(percent * 1e4) / 1e4;
}

const Name* nameOf(std::span<const Name> names, int number)
{
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const Name& each) { return each.number == number; });
    return found == names.end() ? nullptr : &*found;
}

const Name* nameOf(std::span<const Name> names, const std::string& word)
{
    const std::string wanted = plain(word);
    const auto found = std::find_if(names.begin(), names.end(), [&](const Name& each) {
        return wanted == plain(each.word) || wanted == plain(each.name) ||
               (each.alias != nullptr && wanted == plain(each.alias));
    });
    return found == names.end() ? nullptr : &*found;
}

ViewValue parse(ViewEntry entry, const std::string& word)
{
    const Description& description = viewentries::describe(entry);
    if (description.unsettable && plain(word) == unset)
        return Unset();
    switch (description.kind) {
    case Kind::Name:
        return nameNumber(description, word);
    case Kind::Flag:
        return flag(description, word);
    case Kind::Count:
        return wholeNumber(description, word);
    case Kind::Page:
        return page(description, word);
    case Kind::Magnification:
        return magnification(description, word);
    case Kind::Text:
        return title(description, word);
    case Kind::Language:
        return language(description, word);
    }
    refuse(description, word);
}

std::string wordOf(ViewEntry entry, const ViewValue& value)
{
    const Description& description = viewentries::describe(entry);
    if (const int* number = std::get_if<int>(&value))
        return wordOf(description, *number);
    if (const auto* zoom = std::get_if<Magnification>(&value))
        return wordOf(*zoom);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (std::holds_alternative<LastPage>(value))
        return "last";
    if (std::holds_alternative<FileNameAsTitle>(value))
        return "the file's name";
    if (std::holds_alternative<Invalid>(value))
        return "invalid";
    if (const auto* action = std::get_if<OtherAction>(&value))
        return action->type;
    return description.unsettable ? "unset" : "";
}

std::string told(ViewEntry entry, const ViewValue& value)
{
    if (std::holds_alternative<Unset>(value))
        return "unset";
    std::string word = wordOf(entry, value);
    return word.empty() ? "empty" : word;
}

std::vector<std::string> optionsOf(const ViewChange& change)
{
    std::vector<std::string> options;
    for (const Description& each : viewentries::all()) {
        const std::optional<ViewValue>& value = change[each.entry];
        if (!value)
            continue;
        if (std::holds_alternative<FileNameAsTitle>(*value)) {
            options.emplace_back("--title-from-file-name");
            continue;
        }
        options.push_back("--" + std::string(each.option));
        options.push_back(wordOf(each.entry, *value));
    }
    if (change.keepsTitles())
        options.emplace_back("--title-if-missing");
    return options;
}

} // namespace host::viewvalues
