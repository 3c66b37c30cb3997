#pragma once

#include "host/desktop/documents/DocumentRecord.h"

#include <QStringList>

namespace host::desktop {

/// Which documents are shown: those of a filter in words that have all the words of the search.
class DocumentFilter
{
public:
    enum class Kind {
        All,
        NoTitleShown,
        TitleNotShown,
        NoTitle,
        BookmarksNotShown,
        NoBookmarks,
        OpensAtPage,
        WillChange,
        Failed,
        Trouble,
        Signed,
        Encrypted,
        Changed
    };

    /// In the order in which they are offered.
    static const std::vector<Kind>& kinds();
    static QString nameOf(Kind kind);

    Kind kind() const { return m_kind; }
    void setKind(Kind kind) { m_kind = kind; }
    void setSearch(const QString& text) { m_words = text.simplified().split(' ', Qt::SkipEmptyParts); }

    bool isOpen() const { return m_kind == Kind::All && m_words.isEmpty(); }
    /// A document that is not read yet belongs to no filter about what it holds.
    bool accepts(const DocumentRecord& record) const;

private:
    bool isOfKind(const DocumentRecord& record) const;

    Kind m_kind = Kind::All;
    QStringList m_words;
};

} // namespace host::desktop
