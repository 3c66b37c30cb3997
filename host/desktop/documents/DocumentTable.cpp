#include "DocumentTable.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace host::desktop {

namespace {

bool isBefore(const DocumentRecord& record, DocumentId id)
{
    return record.id < id;
}

} // namespace

DocumentRecord* DocumentTable::locate(DocumentId id)
{
    const auto found = std::lower_bound(m_records.begin(), m_records.end(), id, isBefore);
    return found != m_records.end() && found->id == id ? &*found : nullptr;
}

const DocumentRecord* DocumentTable::find(DocumentId id) const
{
    const auto found = std::lower_bound(m_records.begin(), m_records.end(), id, isBefore);
    return found != m_records.end() && found->id == id ? &*found : nullptr;
}

DocumentTable::Ids DocumentTable::append(const QVector<QByteArray>& paths)
{
    Ids added;
    for (const QByteArray& path : paths) {
        if (m_ids.contains(path))
            continue;
        m_ids.insert(path, ++m_lastId);
        m_records.push_back(DocumentRecord::of(m_lastId, path));
        added.append(m_lastId);
    }
    if (!added.isEmpty())
        emit appended(added);
    return added;
}

std::vector<DocumentRecord> DocumentTable::remove(const Ids& ids)
{
    const QSet<DocumentId> gone(ids.begin(), ids.end());
    std::vector<DocumentRecord> removed;
    std::vector<DocumentRecord> kept;
    for (DocumentRecord& record : m_records)
        (gone.contains(record.id) ? removed : kept).push_back(std::move(record));
    m_records = std::move(kept);
    for (const DocumentRecord& record : removed)
        m_ids.remove(record.path);
    if (!removed.empty())
        emit rearranged();
    return removed;
}

/// A document that was added once more meanwhile stays the newer one.
void DocumentTable::restore(std::vector<DocumentRecord> records)
{
    std::vector<DocumentRecord> all;
    records.erase(std::remove_if(records.begin(), records.end(),
                                 [this](const DocumentRecord& each) { return m_ids.contains(each.path); }),
                  records.end());
    for (const DocumentRecord& record : records)
        m_ids.insert(record.path, record.id);
    std::merge(std::make_move_iterator(m_records.begin()), std::make_move_iterator(m_records.end()),
               std::make_move_iterator(records.begin()), std::make_move_iterator(records.end()),
               std::back_inserter(all),
               [](const DocumentRecord& left, const DocumentRecord& right) { return left.id < right.id; });
    m_records = std::move(all);
    emit rearranged();
}

void DocumentTable::change(DocumentId id, const Change& change)
{
    DocumentRecord* record = locate(id);
    if (record == nullptr)
        return;
    change(*record);
    m_changed.append(id);
}

void DocumentTable::changeAll(const Change& change)
{
    for (DocumentRecord& record : m_records) {
        change(record);
        m_changed.append(record.id);
    }
    flush();
}

void DocumentTable::flush()
{
    if (m_changed.isEmpty())
        return;
    Ids ids;
    std::swap(ids, m_changed);
    emit changed(ids);
}

} // namespace host::desktop
