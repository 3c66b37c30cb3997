#pragma once

#include "ViewChange.h"

#include <string>
#include <vector>

/// View values in the words of the command line.
namespace host::viewvalues {

/// A percentage as documents keep it: with four decimal places.
double storedPercent(double percent);

/// The value that a word gives an entry; a UsageError that names the choices for any other word. Names count
/// in any case, and with or without hyphens.
ViewValue parse(ViewEntry entry, const std::string& word);

/// The word that `parse` takes for the value; for one that it does not take what it is.
std::string wordOf(ViewEntry entry, const ViewValue& value);

/// What a document has, in a word that leaves nothing open: "unset", "invalid", and "empty" for a text.
std::string told(ViewEntry entry, const ViewValue& value);

/// The options of "quintar run" that make the change, a word each: "--page-mode", "use-outlines".
std::vector<std::string> optionsOf(const ViewChange& change);

/// The name with this number, or with this word, alias or ISO 32000 name; null when there is none.
const viewentries::Name* nameOf(std::span<const viewentries::Name> names, int number);
const viewentries::Name* nameOf(std::span<const viewentries::Name> names, const std::string& word);

} // namespace host::viewvalues
