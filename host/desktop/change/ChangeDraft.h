#pragma once

#include "host/change/ViewChange.h"
#include "host/desktop/documents/DocumentFacts.h"

#include <QStringList>

#include <optional>

namespace host::desktop {

/// Settings that are stored as a whole, as the action's own dialog makes them: all or nothing.
struct StoredChoice
{
    QString name;
    /// The program's options that apply them.
    QStringList options;
    /// A line each of what they do.
    QStringList lines;
    /// What they do as far as it concerns the view.
    ViewChange view;
    bool operator==(const StoredChoice&) const = default;
};

/// The change that is being prepared: single entries of the view, or stored settings.
class ChangeDraft
{
public:
    const ViewChange& view() const { return m_view; }
    const std::optional<StoredChoice>& stored() const { return m_stored; }
    /// What it sets, also where that is stored.
    const ViewChange& effect() const { return m_stored ? m_stored->view : m_view; }
    bool isEmpty() const { return m_view.isEmpty() && !m_stored; }

    /// Nothing: the entry stays as it is. Choosing an entry gives stored settings up.
    void set(ViewEntry entry, const std::optional<ViewValue>& value);
    void setKeepsTitles(bool keeps);
    void setView(const ViewChange& view);
    void setStored(const StoredChoice& stored);

    /// What makes documents open as this one does; its own title and language are no part of that.
    static ViewChange like(const DocumentFacts& facts);

    QStringList arguments() const;
    /// "Panel: Bookmarks; Title bar: Document title"
    QString inWords() const;

    bool operator==(const ChangeDraft&) const = default;

private:
    ViewChange m_view;
    std::optional<StoredChoice> m_stored;
};

} // namespace host::desktop
