#include "SortKeys.h"

#include "RowTexts.h"

#include <QCollator>

#include <algorithm>
#include <climits>

namespace host::desktop::SortKeys {

namespace {

int numberOf(const DocumentRecord& record, Column column)
{
    if (!record.facts)
        return INT_MIN;
    const DocumentFacts& facts = *record.facts;
    if (column == Column::Pages)
        return facts.pages;
    if (column == Column::Bookmarks)
        return facts.bookmarks;
    return host::numberOf(facts[ViewEntry::OpenPage], 0);
}

/// \param keyOf gives what the documents are compared by.
template <class Key, class KeyOf>
void sortBy(const DocumentTable& table, Qt::SortOrder order, DocumentTable::Ids& ids, const KeyOf& keyOf)
{
    std::vector<std::pair<Key, DocumentId>> keyed;
    keyed.reserve(static_cast<std::size_t>(ids.size()));
    for (const DocumentId id : ids)
        keyed.emplace_back(keyOf(*table.find(id)), id);
    std::sort(keyed.begin(), keyed.end(), [order](const auto& left, const auto& right) {
        if (left.first < right.first)
            return order == Qt::AscendingOrder;
        if (right.first < left.first)
            return order == Qt::DescendingOrder;
        return left.second < right.second;
    });
    std::transform(keyed.begin(), keyed.end(), ids.begin(), [](const auto& each) { return each.second; });
}

/// Making a collation key is what takes the time, and most columns have few different texts.
class TextKeys
{
public:
    /// Without a language texts would be put in the order of their numbers.
    TextKeys() : m_collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale())
    {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    QCollatorSortKey of(const QString& text)
    {
        const auto known = m_keys.constFind(text);
        return known != m_keys.constEnd() ? *known : *m_keys.insert(text, m_collator.sortKey(text));
    }

private:
    QCollator m_collator;
    QHash<QString, QCollatorSortKey> m_keys;
};

} // namespace

void arrange(const DocumentTable& table, Column column, Qt::SortOrder order, DocumentTable::Ids& ids)
{
    if (columns::describe(column).isNumber)
        return sortBy<int>(table, order, ids,
                           [column](const DocumentRecord& each) { return numberOf(each, column); });
    if (column == Column::State)
        return sortBy<int>(table, order, ids,
                           [](const DocumentRecord& each) { return static_cast<int>(each.state()); });
    TextKeys keys;
    sortBy<QCollatorSortKey>(table, order, ids, [column, &keys](const DocumentRecord& each) {
        return keys.of(rowtexts::cell(each, column).now);
    });
}

} // namespace host::desktop::SortKeys
