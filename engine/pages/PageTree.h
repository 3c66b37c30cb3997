#pragma once

#include "TreeWalk.h"

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <memory>
#include <optional>
#include <vector>

namespace engine {

class Document;
class KidCounts;

/// One page and the way to it.
struct PagePath
{
    QPDFObjectHandle page;
    std::vector<QPDFObjectHandle> nodes; ///< From the root to the node whose /Kids lists the page.
    int kid = 0;                         ///< The page's place in that /Kids.

    /// The value of an inheritable attribute, taken from the way down to the page and not from /Parent, which
    /// may lead elsewhere. \param wellFormed says whether a value counts; others are as good as absent.
    QPDFObjectHandle inherited(Document& document, const std::string& key,
                               bool (*wellFormed)(Document&, QPDFObjectHandle)) const;
};

/// The pages of a document, numbered from 1, without reading those that nobody asks for.
///
/// The counts of a large tree are believed as long as nothing that is read contradicts them, and a page is
/// found by them. A small tree, or one in which something does not fit, is walked whole, once. Neither way
/// uses recursion.
class PageTree
{
public:
    explicit PageTree(Document& document) : m_document(document) {}

    /// Forgets what was read; the document is read anew.
    void forget();

    /// At least one, and the first can be reached.
    bool hasPages();

    int pageCount();

    /// The pages that there are, whatever counts say.
    int countAll() { return static_cast<int>(walk().leaves.size()); }

    /// Throws UnknownPage.
    const PagePath& page(int number);

    /// Throws UnknownPage when page() would; reads no page to find that out if it can.
    void requirePage(int number);

    /// The number of the page that an indirect object is; its first place when it is listed more than once.
    /// \returns 0 when it is no page of the document.
    int numberOf(const QPDFObjectHandle& page);

    /// A reference to the page for a destination. A page that stands directly in its /Kids becomes an object
    /// of its own first. Throws UnknownPage.
    QPDFObjectHandle reference(int number);

private:
    QPDFObjectHandle root();
    const TreeWalk& walk();
    PagePath walkedPath(const TreeWalk::Leaf& leaf);
    QPDFObjGen idOf(const TreeWalk::Leaf& leaf);
    std::shared_ptr<KidCounts> countsOf(const QPDFObjectHandle& node);
    std::optional<int> believedCount();
    std::optional<PagePath> descend(int number);
    void markKidsChanged(const PagePath& path);
    std::optional<int> climb(QPDFObjectHandle page);

    Document& m_document;
    std::optional<TreeWalk> m_walk; ///< Once the tree was walked.
    bool m_mustWalk = false;
    std::shared_ptr<KidCounts> m_counts; ///< Of the root.
    int m_lastNumber = 0;                ///< Number of the page in m_lastPath, 0 for none.
    PagePath m_lastPath;
};

} // namespace engine
