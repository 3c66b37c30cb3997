#include "PageTree.h"

#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/reading/KidGlimpse.h"

#include <algorithm>
#include <climits>
#include <set>
#include <string>

namespace engine {

namespace {

// Trees of up to this many pages are walked whole, so that counts that lie do no harm.
const int smallTree = 256;

// Nodes can share one array of kids, and so list more pages than the document has bytes.
const std::size_t mostListed = 250'000;

using Kind = KidKind;

Kind kindOf(Document& document, QPDFObjectHandle object)
{
    if (!object.isDictionary())
        return Kind::Neither;
    if (document.kids(object))
        return Kind::Node;
    return document.key(object, "/Type").isNameAndEquals("/Pages") ? Kind::Neither : Kind::Page;
}

/// /Count where it can be right.
std::optional<int> statedCount(Document& document, const QPDFObjectHandle& node)
{
    QPDFObjectHandle count = document.key(node, "/Count");
    if (!count.isInteger() || count.getIntValue() < 0 || count.getIntValue() > INT_MAX)
        return std::nullopt;
    return static_cast<int>(count.getIntValue());
}

std::optional<KidGlimpse> glimpse(Document& document, const Kids& kids, int kid)
{
    const std::optional<std::string_view> text = document.unreadKid(kids, kid);
    return text ? glimpseOf(*text) : std::nullopt;
}

std::optional<int> pagesUnder(Document& document, const QPDFObjectHandle& kid)
{
    switch (kindOf(document, kid)) {
    case Kind::Page:
        return 1;
    case Kind::Node:
        return statedCount(document, kid);
    case Kind::Neither:
        break;
    }
    return std::nullopt;
}

} // namespace

/// How many pages come before each kid of a node, and in all of it. A node with as many kids as pages has
/// only pages: these are not looked at.
class KidCounts
{
public:
    /// \returns nothing when the node's count is not the sum of its kids'.
    static std::optional<KidCounts> of(Document& document, QPDFObjectHandle node)
    {
        KidCounts counts;
        const Kids kids = document.kids(node);
        const std::optional<int> total = statedCount(document, node);
        counts.m_kids = kids.size();
        if (total == counts.m_kids)
            return counts;
        if (!total || !counts.addUp(document, kids, *total))
            return std::nullopt;
        return counts;
    }

    int pagesBefore(int kid) const
    {
        return m_before.empty() ? kid : m_before[static_cast<std::size_t>(kid)];
    }

    /// The last kid with fewer than `page` pages before it.
    int kidWith(int page) const
    {
        if (m_before.empty())
            return page - 1;
        return static_cast<int>(std::lower_bound(m_before.begin(), m_before.end(), page) - m_before.begin()) -
               1;
    }

private:
    bool addUp(Document& document, const Kids& kids, int total)
    {
        int sum = 0;
        for (int kid = 0; kid < m_kids; ++kid) {
            const std::optional<KidGlimpse> seen = glimpse(document, kids, kid);
            const bool isNode = seen && seen->kind == Kind::Node && seen->count;
            const std::optional<int> pages =
                isNode ? seen->count : pagesUnder(document, document.kid(kids, kid));
            if (!pages || *pages > total - sum)
                return false;
            m_before.push_back(sum);
            sum += *pages;
        }
        m_before.push_back(sum);
        return sum == total;
    }

    int m_kids = 0;
    std::vector<int> m_before;
};

namespace {

int placeIn(const Kids& kids, QPDFObjGen object)
{
    for (int kid = 0; kid < kids.size(); ++kid)
        if (kids.id(kid) == object)
            return kid;
    return -1;
}

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
    m_mustWalk = m_mustWalk || m_walked;
    m_walked = false;
    m_nodes.clear();
    m_leaves.clear();
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
    if (const std::optional<int> count = trustedCount())
        return *count;
    walk();
    return static_cast<int>(m_leaves.size());
}

std::shared_ptr<const KidCounts> PageTree::countsOf(const QPDFObjectHandle& node)
{
    // The root's are asked for again and again.
    if (node.getObjGen() != m_countedNode || m_counts == nullptr) {
        const std::optional<KidCounts> counts = KidCounts::of(m_document, node);
        if (!counts)
            return nullptr;
        if (node.getObjGen() != root().getObjGen())
            return std::make_shared<KidCounts>(*counts);
        m_countedNode = node.getObjGen();
        m_counts = std::make_shared<KidCounts>(*counts);
    }
    return m_counts;
}

std::optional<int> PageTree::trustedCount()
{
    if (m_walked || m_mustWalk || kindOf(m_document, root()) != Kind::Node)
        return std::nullopt;
    const std::optional<int> count = statedCount(m_document, root());
    const bool fits = count && *count > smallTree && countsOf(root());
    return fits ? count : std::nullopt;
}

void PageTree::requirePage(int number)
{
    if (number < 1 || number > pageCount())
        throw EngineError(ErrorCode::UnknownPage);
    if (!m_walked)
        page(number); // counts can promise pages that are not there
}

const PagePath& PageTree::page(int number)
{
    if (number == m_lastNumber && number > 0)
        return m_lastPath;
    if (number < 1 || number > pageCount())
        throw EngineError(ErrorCode::UnknownPage);
    std::optional<PagePath> path = m_walked || m_mustWalk ? std::nullopt : descend(number);
    if (!path) {
        walk();
        if (static_cast<std::size_t>(number) > m_leaves.size())
            throw EngineError(ErrorCode::UnknownPage);
        path = walkedPath(m_leaves[static_cast<std::size_t>(number) - 1]);
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
        const std::shared_ptr<const KidCounts> counts = countsOf(node);
        if (!counts || !seen.insert(node.getObjGen()).second)
            return std::nullopt;
        path.nodes.push_back(node);
        path.kid = counts->kidWith(number);
        number -= counts->pagesBefore(path.kid);
        node = m_document.kid(m_document.kids(node), path.kid);
        const Kind kind = kindOf(m_document, node);
        if (kind == Kind::Page && number == 1) {
            path.page = node;
            return path;
        }
        if (kind != Kind::Node || number > statedCount(m_document, node))
            return std::nullopt;
    }
}

/// Goes through a whole tree, node by node, without recursion.
class PageTree::Walker
{
public:
    explicit Walker(Document& document)
        : m_document(document), m_mostKids(mostListed + document.source()->size())
    {}

    void walk(const QPDFObjectHandle& root)
    {
        const Kind kind = kindOf(m_document, root);
        if (kind == Kind::Page && m_document.key(root, "/Type").isNameAndEquals("/Page"))
            leaves.push_back({-1, 0});
        else if (kind == Kind::Node)
            enter(root, -1);
        while (!m_steps.empty()) {
            if (m_steps.back().next == m_steps.back().kids.size())
                m_steps.pop_back();
            else
                meetNextKid();
        }
    }

    std::vector<Node> nodes;
    std::vector<Leaf> leaves;

private:
    struct Step
    {
        int node;
        Kids kids;
        int next = 0;
    };

    void enter(const QPDFObjectHandle& node, int parent)
    {
        if (node.isIndirect() && !m_seen.insert(node.getObjGen()).second)
            return;
        nodes.push_back({node, parent});
        m_steps.push_back({static_cast<int>(nodes.size()) - 1, m_document.kids(node)});
    }

    void meetNextKid()
    {
        if (++m_kids > m_mostKids)
            throw EngineError(ErrorCode::TooMuchWork);
        Step& step = m_steps.back();
        const int kid = step.next++;
        const int node = step.node;
        const std::optional<KidGlimpse> seen = glimpse(m_document, step.kids, kid);
        if (seen && seen->kind == Kind::Neither)
            return;
        if (seen && seen->kind == Kind::Page) {
            leaves.push_back({node, kid});
            return;
        }
        const QPDFObjectHandle object = m_document.kid(step.kids, kid);
        const Kind kind = kindOf(m_document, object);
        if (kind == Kind::Page)
            leaves.push_back({node, kid});
        else if (kind == Kind::Node)
            enter(object, node);
    }

    Document& m_document;
    std::size_t m_mostKids;
    std::size_t m_kids = 0;
    std::vector<Step> m_steps;
    std::set<QPDFObjGen> m_seen;
};

void PageTree::walk()
{
    if (m_walked)
        return;
    Walker walker(m_document);
    walker.walk(root());
    m_nodes = std::move(walker.nodes);
    m_leaves = std::move(walker.leaves);
    m_walked = true;
    m_lastNumber = 0;
}

QPDFObjectHandle PageTree::walkedPage(const Leaf& leaf) const
{
    if (leaf.node < 0)
        return m_document.node(m_document.catalog().getKey("/Pages"));
    return m_document.kid(m_document.kids(nodeAt(leaf.node).dictionary), leaf.kid);
}

PagePath PageTree::walkedPath(const Leaf& leaf) const
{
    PagePath path{walkedPage(leaf), {}, leaf.kid};
    for (int node = leaf.node; node >= 0; node = nodeAt(node).parent)
        path.nodes.push_back(nodeAt(node).dictionary);
    std::reverse(path.nodes.begin(), path.nodes.end());
    return path;
}

int PageTree::numberOf(const QPDFObjectHandle& page)
{
    if (!page.isIndirect())
        return 0;
    const QPDFObjGen wanted = page.getObjGen();
    if (trustedCount()) {
        const std::optional<int> number = climb(page);
        if (number && this->page(*number).page.getObjGen() == wanted)
            return *number;
    }
    walk();
    const auto found = std::find_if(m_leaves.begin(), m_leaves.end(),
                                    [&](const Leaf& leaf) { return walkedPage(leaf).getObjGen() == wanted; });
    return found == m_leaves.end() ? 0 : static_cast<int>(found - m_leaves.begin()) + 1;
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
        if (kindOf(m_document, parent) != Kind::Node)
            return std::nullopt;
        const int kid = placeIn(m_document.kids(parent), node.getObjGen());
        const std::shared_ptr<const KidCounts> counts = countsOf(parent);
        if (kid < 0 || !counts || counts->pagesBefore(kid) > INT_MAX - number)
            return std::nullopt;
        number += counts->pagesBefore(kid);
        node = parent;
    }
    return number;
}

/// The indirect object in which the /Kids that list the page are written.
QPDFObjectHandle PageTree::holderOfKids(const PagePath& path)
{
    for (auto node = path.nodes.rbegin(); node != path.nodes.rend(); ++node) {
        QPDFObjectHandle kids = m_document.key(*node, "/Kids");
        if (kids.isIndirect())
            return kids;
        if (node->isIndirect())
            return *node;
    }
    return m_document.catalog();
}

QPDFObjectHandle PageTree::reference(int number)
{
    const PagePath& path = page(number);
    if (path.page.isIndirect())
        return path.page;
    QPDFObjectHandle made = m_document.makeIndirect(path.page);
    if (path.nodes.empty()) {
        m_document.catalog().replaceKey("/Pages", made);
        m_document.markChanged(m_document.catalog());
    } else {
        m_document.key(path.nodes.back(), "/Kids").setArrayItem(path.kid, made);
        m_document.markChanged(holderOfKids(path));
    }
    m_document.markChanged(made);
    m_lastNumber = 0;
    return made;
}

} // namespace engine
