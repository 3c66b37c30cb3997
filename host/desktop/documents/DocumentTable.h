#pragma once

#include "DocumentRecord.h"

#include <QHash>
#include <QObject>
#include <QVector>

#include <functional>
#include <vector>

namespace host::desktop {

/// The documents of the window, by their ids. Ids grow and are never used again, so their order is that in
/// which documents were added.
class DocumentTable : public QObject
{
    Q_OBJECT

public:
    using Ids = QVector<DocumentId>;
    using Change = std::function<void(DocumentRecord&)>;

    using QObject::QObject;

    int count() const { return static_cast<int>(m_records.size()); }
    const std::vector<DocumentRecord>& records() const { return m_records; }
    /// Null for an id that is not in the list; valid until the next change.
    const DocumentRecord* find(DocumentId id) const;
    /// 0 for a path that is not in the list.
    DocumentId idOf(const QByteArray& path) const { return m_ids.value(path); }

    /// Adds the documents that are not in the list yet. \returns their ids.
    Ids append(const QVector<QByteArray>& paths);
    /// Ids that are not in the list are passed over. \returns the records, to be restored.
    std::vector<DocumentRecord> remove(const Ids& ids);
    void restore(std::vector<DocumentRecord> records);

    /// Changes a record; views are told by the next flush(), so that many changes are told at once.
    void change(DocumentId id, const Change& change);
    void changeAll(const Change& change);
    void flush();

signals:
    void appended(const host::desktop::DocumentTable::Ids& ids);
    void changed(const host::desktop::DocumentTable::Ids& ids);
    /// Records were removed or came back.
    void rearranged();

private:
    DocumentRecord* locate(DocumentId id);

    std::vector<DocumentRecord> m_records;
    QHash<QByteArray, DocumentId> m_ids;
    Ids m_changed;
    DocumentId m_lastId = 0;
};

} // namespace host::desktop
