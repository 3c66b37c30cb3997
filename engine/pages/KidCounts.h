#pragma once

#include "engine/reading/Kids.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <optional>
#include <vector>

namespace engine {

class Document;

/// How many pages come before each kid of a node, as the counts say. Only the kids that it takes to tell are
/// looked at.
///
/// A node with as many kids as pages has only pages; in a tree that is not large its first and its last kid
/// have to be pages. In any other the kids' counts are added up to the kid that is wanted. From the back they
/// are added up where the node's count is borne out: by the sum of all of them, or in a large tree by few.
/// Writers that make nodes of one size make nodes whose kids have one count up to some kid, and one other
/// count behind it; the first and the last kid, and the two at that place, show whether the node's count can
/// be their sum. Where it cannot, or where a kid does not fit, all are added up.
class KidCounts
{
public:
    /// What it takes to believe a node's count.
    enum class Proof { All, Few };

    /// \param document must outlive the counts.
    /// \param node with a count from 0.
    KidCounts(Document& document, const QPDFObjectHandle& node, Proof proof);

    /// Whether the node's count can be the sum of its kids', as far as the first one shows.
    bool isLikely();
    /// Whether it is, or where few kids are proof, as far as four of them show.
    bool isBorneOut();

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
    enum class Count { Unproved, Regular, Sum, Wrong };

    bool isPage(int kid);
    bool looksRegular();
    bool haveFitted() const;
    int expected(int kid) const { return kid < m_change ? m_early : m_late; }
    bool addFromFront();
    bool addFromBack();
    bool addUp();

    Document& m_document;
    Kids m_kids;
    int m_total;
    Proof m_proof;
    bool m_isList;
    Count m_count = Count::Unproved;
    int m_early = 0;             // count of a regular node's kids before m_change
    int m_late = 0;              // and from there on
    int m_change = 0;            // place of a kid
    std::vector<int> m_front{0}; // pages in the first so many kids
    std::vector<int> m_back{0};  // and in the last, of a regular node
};

} // namespace engine
