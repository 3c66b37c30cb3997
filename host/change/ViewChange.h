#pragma once

#include "ViewEntries.h"

#include <array>
#include <optional>
#include <string>
#include <variant>

namespace host {

/// The entry is taken away.
struct Unset
{
    bool operator==(const Unset&) const = default;
};

/// Something stands there that the entry cannot hold, so it says nothing. Only documents have it.
struct Invalid
{
    bool operator==(const Invalid&) const = default;
};

/// The document opens with an action that shows no page. It stays where it is: none can be given to another
/// document.
struct OtherAction
{
    std::string type; ///< As ISO 32000 names it.

    bool operator==(const OtherAction&) const = default;
};

/// The last page, whichever that is.
struct LastPage
{
    bool operator==(const LastPage&) const = default;
};

/// The title is the name of the document's file, without its suffix.
struct FileNameAsTitle
{
    bool operator==(const FileNameAsTitle&) const = default;
};

struct Magnification
{
    /// The library's destination type; 0 for one that no reader knows.
    int type = 1;
    /// 0 for none; only of type 1.
    double percent = 0;
    /// Left, bottom, right and top of what a FitRectangle shows; else 0.
    std::array<double, 4> rectangle{};

    bool operator==(const Magnification&) const = default;
};

/// What an entry is, or is set to. A number is a name's (ViewEntries), a flag's (0 or 1), a page's or a
/// count; a text is UTF-8.
using ViewValue =
    std::variant<Unset, int, Magnification, LastPage, FileNameAsTitle, std::string, Invalid, OtherAction>;

/// The number that a value is; `absent` for every other value.
inline int numberOf(const ViewValue& value, int absent)
{
    const int* number = std::get_if<int>(&value);
    return number != nullptr ? *number : absent;
}

/// A change of how a document opens: which entries, and what they are set to. What it does not name stays as
/// it is.
class ViewChange
{
public:
    bool isEmpty() const;
    /// Nothing for what stays.
    const std::optional<ViewValue>& operator[](ViewEntry entry) const;
    /// The number that an entry is set to; `absent` for an entry that stays, and for every other value.
    int number(ViewEntry entry, int absent) const;
    void set(ViewEntry entry, ViewValue value);
    /// The entry stays as it is.
    void remove(ViewEntry entry);

    /// Whether a title that is there stays.
    bool keepsTitles() const { return m_keepsTitles; }
    void keepTitles() { m_keepsTitles = true; }

    /// Takes over what the other one names; what that rules out about the open action goes.
    void add(const ViewChange& other);

    /// What cannot be meant, in words that the user can act on; empty when nothing is wrong.
    std::string contradiction() const;

    bool operator==(const ViewChange&) const = default;

private:
    std::array<std::optional<ViewValue>, viewEntryCount> m_values;
    bool m_keepsTitles = false;
};

} // namespace host
