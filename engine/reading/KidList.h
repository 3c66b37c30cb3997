#pragma once

#include <qpdf/QPDFObjGen.hh>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// The references that a /Kids array consists of. They are counted once, and each is parsed when it is asked
/// for: a list of ten thousands of pages is looked at for one of them.
class KidList
{
public:
    /// Reads the array that a text begins with. \returns null when it holds anything but references.
    static std::shared_ptr<const KidList> read(std::string_view text);

    /// How long the array is, with its brackets.
    std::size_t length() const { return m_text.size(); }

    int size() const { return m_size; }
    /// \param kid from 0 to size() - 1.
    QPDFObjGen id(int kid) const;
    /// The first place of an object, -1 when it is not in the list.
    int placeOf(QPDFObjGen id) const;

private:
    KidList() = default;

    bool count(std::string_view text);
    std::size_t startOf(int kid) const;

    std::string m_text;               // the array
    std::vector<std::size_t> m_marks; // where each so many-th reference begins
    int m_size = 0;
    mutable int m_nextKid = 0; // whose start is known: kids are mostly asked for in a row
    mutable std::size_t m_next = 0;
};

} // namespace engine
