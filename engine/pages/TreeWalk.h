#pragma once

#include "engine/reading/Kids.h"

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <set>
#include <vector>

namespace engine {

class Document;

/// All that a page tree lists, found node by node, without recursion and without heed of counts. Every
/// dictionary without /Kids is a page (unless it says that it is a node), a node counts where it is met
/// first, and what is no dictionary does not count.
class TreeWalk
{
public:
    struct Node
    {
        QPDFObjectHandle dictionary;
        int parent; ///< Index of the node above, -1 for the root.
    };
    struct Leaf
    {
        int node; ///< Index of the node above, -1 for a root that is a page itself.
        int kid;
    };

    /// \param document must outlive the walk.
    /// \throws EngineError with TooMuchWork for a tree that lists far more than its document can hold.
    TreeWalk(Document& document, const QPDFObjectHandle& root);

    std::vector<Node> nodes;
    std::vector<Leaf> leaves; ///< The pages, in their order.

private:
    struct Step
    {
        int node;
        Kids kids;
        int next = 0;
    };

    void enter(const QPDFObjectHandle& node, int parent);
    void meetNextKid();

    Document& m_document;
    std::size_t m_mostKids;
    std::size_t m_kids = 0;
    std::vector<Step> m_steps;
    std::set<QPDFObjGen> m_seen;
};

} // namespace engine
