#pragma once

#include "engine/reading/Kids.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <optional>
#include <vector>

namespace engine {

class Document;

/// How many pages come before each kid of a node, as the counts say.
///
/// Of few kids it is known without looking at all of them. A node with as many kids as pages has only pages.
/// Writers that make nodes of one size make nodes whose kids have one count up to some kid, and one other
/// count behind it; where the first and the last kid, and the two at that place, fit the node's count, the
/// kids are looked at from the nearer end up to the one that is wanted, as long as they fit as well. The
/// kids of any other node are added up.
class KidCounts
{
public:
    /// \param document must outlive the counts.
    /// \returns nothing when the node's count is seen not to be the sum of its kids'.
    static std::optional<KidCounts> of(Document& document, const QPDFObjectHandle& node);

    struct Place
    {
        int kid;         ///< From 0.
        int pagesBefore; ///< In the kids before it.
    };

    /// The last kid with fewer than `page` pages before it.
    /// \param page from 1 to the node's count.
    /// \returns nothing when the node's count is seen not to be the sum of its kids'.
    std::optional<Place> placeOf(int page);

    /// The pages in the kids before one.
    /// \param kid from 0. \returns nothing as placeOf() does.
    std::optional<int> pagesBefore(int kid);

private:
    KidCounts(Document& document, Kids kids, int total);

    bool isList() const { return m_total == m_kids.size(); }
    bool looksRegular();
    bool fits(int kid, std::optional<int> pages) const
    {
        return pages == (kid < m_change ? m_early : m_late);
    }
    bool addFromFront();
    bool addFromBack();
    bool addUp();

    Document* m_document;
    Kids m_kids;
    int m_total;
    bool m_regular = false;
    int m_early = 0;             // count of a regular node's kids before m_change
    int m_late = 0;              // and from there on
    int m_change = 0;            // place of a kid
    std::vector<int> m_front{0}; // pages in the first so many kids
    std::vector<int> m_back{0};  // and in the last, of a regular node
};

} // namespace engine
