#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace host {

/// The entries of a document that say how it opens, in the order in which the program tells about them. Zoom
/// and OpenPage are both of the open action.
enum class ViewEntry {
    PageMode,
    PageLayout,
    OpenPage,
    Zoom,
    HideToolbar,
    HideMenubar,
    HideWindowUI,
    FitWindow,
    CenterWindow,
    DisplayDocTitle,
    NonFullScreenPageMode,
    Direction,
    PrintScaling,
    Duplex,
    PickTrayByPDFSize,
    NumCopies,
    Title,
    Lang,
};

inline constexpr std::size_t viewEntryCount = 18;

namespace viewentries {

/// What an entry takes.
enum class Kind {
    Name,          ///< One of its names.
    Flag,          ///< yes or no
    Count,         ///< a whole number, from 1
    Page,          ///< a page's number, or the last
    Magnification, ///< a way to fit the page, or a percentage
    Text,
    Language, ///< a language tag
};

/// One of the names that an entry takes.
struct Name
{
    int number;        ///< The library's.
    const char* name;  ///< ISO 32000's.
    const char* word;  ///< The same as a word of the command line.
    const char* alias; ///< Another word, or null.
};

/// What is known about an entry.
struct Description
{
    ViewEntry entry;
    Kind kind;
    const char* key;    ///< ISO 32000's; of the open action's two, what JSON calls them.
    const char* option; ///< Of the command line, without its dashes.
    const char* value;  ///< Stands for the value in help texts.
    const char* brief;  ///< What it is, in a line.
    const char* more;   ///< What else is to be known; may be empty.
    int preference;     ///< The library's number of a viewer preference, else 0.
    std::span<const Name> names;
    bool unsettable; ///< Whether the word "unset" takes the entry away.
};

const std::array<Description, viewEntryCount>& all();
const Description& describe(ViewEntry entry);

/// Where the open action's destination says how the page is shown; in Name::number the destination type. The
/// command line takes them all.
std::span<const Name> magnifications();
/// Those and what only documents and JSON have, as it needs more than a word.
std::span<const Name> allMagnifications();

/// The percentages that a magnification may have.
inline constexpr double lowestPercent = 1;
inline constexpr double highestPercent = 6400;

/// Every word that the option takes; nothing of numbers and texts.
std::vector<std::string> words(const Description& entry);

/// The entry's name in a sentence: "page mode".
std::string label(ViewEntry entry);

} // namespace viewentries

} // namespace host
