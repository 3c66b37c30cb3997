#include "DocumentFilter.h"

#include "pdflibrary/ViewNumbers.h"

#include <QCoreApplication>

#include <algorithm>

namespace host::desktop {

namespace {

using Kind = DocumentFilter::Kind;

struct KindRow
{
    Kind kind;
    const char* name;
};

// clang-format off
const KindRow kindRows[] = {
    {Kind::All, QT_TRANSLATE_NOOP("DocumentFilter", "All documents")},
    {Kind::NoTitleShown, QT_TRANSLATE_NOOP("DocumentFilter", "Do not show their title")},
    {Kind::TitleNotShown, QT_TRANSLATE_NOOP("DocumentFilter", "Have a title but do not show it")},
    {Kind::NoTitle, QT_TRANSLATE_NOOP("DocumentFilter", "Have no title")},
    {Kind::BookmarksNotShown, QT_TRANSLATE_NOOP("DocumentFilter", "Have bookmarks but do not show them")},
    {Kind::NoBookmarks, QT_TRANSLATE_NOOP("DocumentFilter", "Have no bookmarks")},
    {Kind::OpensAtPage, QT_TRANSLATE_NOOP("DocumentFilter", "Open at a page of their own")},
    {Kind::WillChange, QT_TRANSLATE_NOOP("DocumentFilter", "Will change")},
    {Kind::Changed, QT_TRANSLATE_NOOP("DocumentFilter", "Were changed or written")},
    {Kind::Failed, QT_TRANSLATE_NOOP("DocumentFilter", "Failed in the run")},
    {Kind::Trouble, QT_TRANSLATE_NOOP("DocumentFilter", "Failed or cannot be changed")},
    {Kind::Signed, QT_TRANSLATE_NOOP("DocumentFilter", "Signed")},
    {Kind::Encrypted, QT_TRANSLATE_NOOP("DocumentFilter", "Encrypted")},
};
// clang-format on

bool showsBookmarks(const DocumentFacts& facts)
{
    return facts[ViewEntry::PageMode] == ViewValue(pdflibrary::BookmarksPanel);
}

bool holds(Kind kind, const DocumentFacts& facts)
{
    switch (kind) {
    case Kind::NoTitleShown:
        return !facts.showsTitle();
    case Kind::TitleNotShown:
        return !facts.title().isEmpty() && !facts.showsTitle();
    case Kind::NoTitle:
        return facts.title().isEmpty();
    case Kind::BookmarksNotShown:
        return facts.bookmarks > 0 && !showsBookmarks(facts);
    case Kind::NoBookmarks:
        return facts.bookmarks == 0;
    case Kind::OpensAtPage:
        return facts.hasOpenAction() && facts[ViewEntry::OpenPage] != ViewValue(1);
    case Kind::Signed:
        return facts.signatures > 0;
    case Kind::Encrypted:
        return facts.isEncrypted;
    default:
        return true;
    }
}

} // namespace

const std::vector<Kind>& DocumentFilter::kinds()
{
    static const std::vector<Kind> all = [] {
        std::vector<Kind> found;
        for (const KindRow& row : kindRows)
            found.push_back(row.kind);
        return found;
    }();
    return all;
}

QString DocumentFilter::nameOf(Kind kind)
{
    for (const KindRow& row : kindRows)
        if (row.kind == kind)
            return QCoreApplication::translate("DocumentFilter", row.name);
    return {};
}

bool DocumentFilter::accepts(const DocumentRecord& record) const
{
    const auto has = [&record](const QString& word) {
        return record.name.contains(word, Qt::CaseInsensitive) ||
               record.folder.contains(word, Qt::CaseInsensitive) ||
               (record.facts && record.facts->title().contains(word, Qt::CaseInsensitive));
    };
    return isOfKind(record) && std::all_of(m_words.begin(), m_words.end(), has);
}

bool DocumentFilter::isOfKind(const DocumentRecord& record) const
{
    switch (m_kind) {
    case Kind::All:
        return true;
    case Kind::WillChange:
        return record.state() == DocumentRecord::State::WillChange;
    case Kind::Changed:
        return record.state() == DocumentRecord::State::Changed ||
               record.state() == DocumentRecord::State::Written;
    case Kind::Failed:
        return record.state() == DocumentRecord::State::Failed;
    case Kind::Trouble:
        return record.isInTrouble();
    default:
        return record.facts && holds(m_kind, *record.facts);
    }
}

} // namespace host::desktop
