#include "PageTree.h"

#include "KidCounts.h"
#include "engine/document/Document.h"
#include "engine/document/PageNodes.h"
#include "engine/files/EngineError.h"

#include <algorithm>
#include <climits>
#include <set>
#include <string>

namespace engine {

namespace {

// Trees of up to this many pages are walked whole, so that counts that lie do no harm.
const int smallTree = 256;

// Above this many pages, reading all kids of a node would be felt where they lie in object streams.
const int largeTree = 10'000;

} // namespace

QPDFObjectHandle PagePath::inherited(Document& document, const std::string& key,
                                     bool (*wellFormed)(Document&, QPDFObjectHandle)) const
{
    QPDFObjectHandle own = document.key(page, key);
    if (wellFormed(document, own))
        return own;
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
        QPDFObjectHandle value = document.key(*node, key);
        if (wellFormed(document, value))
            return value;
    }
    return QPDFObjectHandle::newNull();
}

QPDFObjectHandle PageTree::root()
{
    return m_document.node(m_document.catalog().getKey("/Pages"));
}

void PageTree::forget()
{
    // Counts that were found to lie are not trusted again: the number of pages would change.
    m_mustWalk = m_mustWalk || m_walk;
    m_walk.reset();
    m_counts.reset();
    m_lastNumber = 0;
}

bool PageTree::hasPages()
{
    // A count can promise pages that are not there.
    if (pageCount() > smallTree && !descend(1))
        walk();
    return pageCount() > 0;
}

int PageTree::pageCount()
{
    if (const std::optional<int> count = believedCount())
        return *count;
    return countAll();
}

/// The counts of a node, null when they are not to be believed.
std::shared_ptr<KidCounts> PageTree::countsOf(const QPDFObjectHandle& node)
{
    // The root's are asked for again and again.
    const bool isRoot = node.getObjGen() == root().getObjGen();
    const bool isLarge = statedCount(m_document, root()) > largeTree;
    const auto proof = isLarge ? KidCounts::Proof::Few : KidCounts::Proof::All;
    auto counts = isRoot && m_counts ? m_counts : std::make_shared<KidCounts>(m_document, node, proof);
    if (isRoot)
        m_counts = counts;
    return (isLarge ? counts->isLikely() : counts->isBorneOut()) ? counts : nullptr;
}

/// The root's count where it is believed. A document cannot have more pages than objects, but for pages that
/// stand directly in their /Kids, which hardly anybody writes.
std::optional<int> PageTree::believedCount()
{
    if (m_walk || m_mustWalk || kindOf(m_document, root()) != KidKind::Node)
        return std::nullopt;
    const std::optional<int> count = statedCount(m_document, root());
    const bool isPossible = count && *count > smallTree && *count < m_document.objectCount();
    return isPossible && countsOf(root()) ? count : std::nullopt;
}

void PageTree::requirePage(int number)
{
    if (number < 1 || number > pageCount())
        throw EngineError(ErrorCode::UnknownPage);
    if (!m_walk)
        page(number); // counts can promise pages that are not there
}

const PagePath& PageTree::page(int number)
{
    if (number == m_lastNumber && number > 0)
        return m_lastPath;
    if (number < 1 || number > pageCount())
        throw EngineError(ErrorCode::UnknownPage);
    std::optional<PagePath> path = believedCount() ? descend(number) : std::nullopt;
    if (!path) {
        const std::vector<TreeWalk::Leaf>& pages = walk().leaves;
        if (static_cast<std::size_t>(number) > pages.size())
            throw EngineError(ErrorCode::UnknownPage);
        path = walkedPath(pages[static_cast<std::size_t>(number) - 1]);
    }
    m_lastPath = std::move(*path);
    m_lastNumber = number;
    return m_lastPath;
}

std::optional<PagePath> PageTree::descend(int number)
{
    PagePath path;
    std::set<QPDFObjGen> seen;
    QPDFObjectHandle node = root();
    while (true) {
        const std::shared_ptr<KidCounts> counts = countsOf(node);
        const auto place = counts ? counts->placeOf(number) : std::nullopt;
        if (!place || !seen.insert(node.getObjGen()).second)
            return std::nullopt;
        path.nodes.push_back(node);
        path.kid = place->kid;
        number -= place->pagesBefore;
        node = m_document.kid(m_document.kids(node), path.kid);
        const KidKind kind = kindOf(m_document, node);
        if (kind == KidKind::Page && number == 1) {
            path.page = node;
            return path;
        }
        if (kind != KidKind::Node || number > statedCount(m_document, node))
            return std::nullopt;
    }
}

const TreeWalk& PageTree::walk()
{
    if (!m_walk) {
        m_walk.emplace(m_document, root());
        m_lastNumber = 0;
    }
    return *m_walk;
}

PagePath PageTree::walkedPath(const TreeWalk::Leaf& leaf)
{
    const std::vector<TreeWalk::Node>& nodes = walk().nodes;
    const auto at = [&](int node) { return nodes[static_cast<std::size_t>(node)]; };
    if (leaf.node < 0)
        return {root(), {}, 0};
    PagePath path{m_document.kid(m_document.kids(at(leaf.node).dictionary), leaf.kid), {}, leaf.kid};
    for (int node = leaf.node; node >= 0; node = at(node).parent)
        path.nodes.push_back(at(node).dictionary);
    std::reverse(path.nodes.begin(), path.nodes.end());
    return path;
}

/// The object that a leaf is; the null object's number for a page that stands directly in its /Kids.
QPDFObjGen PageTree::idOf(const TreeWalk::Leaf& leaf)
{
    if (leaf.node < 0)
        return root().getObjGen();
    return m_document.kids(walk().nodes[static_cast<std::size_t>(leaf.node)].dictionary).id(leaf.kid);
}

int PageTree::numberOf(const QPDFObjectHandle& page)
{
    if (!page.isIndirect())
        return 0;
    const QPDFObjGen wanted = page.getObjGen();
    if (believedCount()) {
        const std::optional<int> number = climb(page);
        if (number && this->page(*number).page.getObjGen() == wanted)
            return *number;
    }
    const std::vector<TreeWalk::Leaf>& pages = walk().leaves;
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [&](const TreeWalk::Leaf& leaf) { return idOf(leaf) == wanted; });
    return found == pages.end() ? 0 : static_cast<int>(found - pages.begin()) + 1;
}

std::optional<int> PageTree::climb(QPDFObjectHandle page)
{
    std::set<QPDFObjGen> seen;
    const QPDFObjGen top = root().getObjGen();
    int number = 1;
    for (QPDFObjectHandle node = m_document.node(page); node.getObjGen() != top;) {
        if (!node.isDictionary() || !seen.insert(node.getObjGen()).second)
            return std::nullopt;
        QPDFObjectHandle parent = m_document.node(node.getKey("/Parent"));
        if (kindOf(m_document, parent) != KidKind::Node)
            return std::nullopt;
        const int kid = m_document.kids(parent).placeOf(node.getObjGen());
        const std::shared_ptr<KidCounts> counts = countsOf(parent);
        const auto before = kid >= 0 && counts ? counts->pagesBefore(kid) : std::nullopt;
        if (!before || *before > INT_MAX - number)
            return std::nullopt;
        number += *before;
        node = parent;
    }
    return number;
}

/// Marks what the /Kids that list the page are written in: the first indirect object on the way up.
void PageTree::markKidsChanged(const PagePath& path)
{
    for (auto node = path.nodes.rbegin(); node != path.nodes.rend(); ++node) {
        QPDFObjectHandle kids = m_document.key(*node, "/Kids");
        if (kids.isIndirect())
            return m_document.markChanged(kids);
        if (node->isIndirect())
            return m_document.markChanged(*node);
    }
    m_document.markCatalogChanged();
}

QPDFObjectHandle PageTree::reference(int number)
{
    const PagePath& path = page(number);
    if (path.page.isIndirect())
        return path.page;
    QPDFObjectHandle made = m_document.makeIndirect(path.page);
    if (path.nodes.empty()) {
        m_document.catalog().replaceKey("/Pages", made);
        m_document.markCatalogChanged();
    } else {
        m_document.key(path.nodes.back(), "/Kids").setArrayItem(path.kid, made);
        markKidsChanged(path);
    }
    m_document.markChanged(made);
    m_lastNumber = 0;
    return made;
}

} // namespace engine
