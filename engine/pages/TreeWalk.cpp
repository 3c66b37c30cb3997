#include "TreeWalk.h"

#include "engine/document/Document.h"
#include "engine/document/PageNodes.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"

namespace engine {

namespace {

// Nodes can share one array of kids, and so list more pages than the document has bytes.
const std::size_t mostListed = 250'000;

} // namespace

TreeWalk::TreeWalk(Document& document, const QPDFObjectHandle& root)
    : m_document(document), m_mostKids(mostListed + document.source()->size())
{
    const KidKind kind = kindOf(m_document, root);
    if (kind == KidKind::Page && m_document.key(root, "/Type").isNameAndEquals("/Page"))
        leaves.push_back({-1, 0});
    else if (kind == KidKind::Node)
        enter(root, -1);
    while (!m_steps.empty()) {
        if (m_steps.back().next == m_steps.back().kids.size())
            m_steps.pop_back();
        else
            meetNextKid();
    }
}

void TreeWalk::enter(const QPDFObjectHandle& node, int parent)
{
    if (node.isIndirect() && !m_seen.insert(node.getObjGen()).second)
        return;
    nodes.push_back({node, parent});
    m_steps.push_back({static_cast<int>(nodes.size()) - 1, m_document.kids(node)});
}

void TreeWalk::meetNextKid()
{
    if (++m_kids > m_mostKids)
        throw EngineError(ErrorCode::TooMuchWork);
    Step& step = m_steps.back();
    const int kid = step.next++;
    const int node = step.node;
    const std::optional<KidGlimpse> seen = glimpse(m_document, step.kids, kid);
    if (seen && seen->kind == KidKind::Neither)
        return;
    if (seen && seen->kind == KidKind::Page) {
        leaves.push_back({node, kid});
        return;
    }
    const QPDFObjectHandle object = m_document.kid(step.kids, kid);
    const KidKind kind = kindOf(m_document, object);
    if (kind == KidKind::Page)
        leaves.push_back({node, kid});
    else if (kind == KidKind::Node)
        enter(object, node);
}

} // namespace engine
