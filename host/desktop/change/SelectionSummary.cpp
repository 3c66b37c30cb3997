#include "SelectionSummary.h"

#include "host/desktop/texts/ViewTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace host::desktop {

namespace {

const std::size_t mostValues = 3;

/// Values are counted before they are put into words: many documents have few different ones.
class Counter
{
public:
    void add(const ViewReading& view, ViewEntry entry)
    {
        const std::optional<ViewValue>& value = view.view[entry];
        const bool isAction = entry == ViewEntry::OpenPage && !view.action.isEmpty();
        for (auto& [seen, isOther, action, count] : m_seen)
            if (seen == value && isOther == isAction && (!isAction || action == view.action)) {
                ++count;
                return;
            }
        if (m_seen.size() < mostDifferent)
            m_seen.push_back({value, isAction, view.action, 1});
        else
            ++m_others;
    }

    SelectionSummary::Entry finish(ViewEntry entry) const
    {
        SelectionSummary::Entry result;
        for (const auto& [value, isAction, action, count] : m_seen)
            result.counts[isAction ? viewtexts::actionOf(action)
                                   : viewtexts::valueOf(entry, value.value_or(Unset()))] += count;
        if (m_others > 0)
            result.counts[QCoreApplication::translate("SelectionSummary", "others")] += m_others;
        if (result.counts.empty())
            return result;
        result.kind = result.counts.size() == 1 ? SelectionSummary::Entry::Kind::Same
                                                : SelectionSummary::Entry::Kind::Different;
        result.value = result.counts.begin()->first;
        return result;
    }

private:
    struct Seen
    {
        std::optional<ViewValue> value;
        bool isAction;
        QString action;
        int count;
    };

    /// Titles and pages may all differ; then it matters only that they do.
    static constexpr std::size_t mostDifferent = 16;
    std::vector<Seen> m_seen;
    int m_others = 0;
};

bool isKeptForSignatures(const DocumentRecord& record)
{
    using Signed = DocumentRecord::Signed;
    const Signed least = record.facts->isCertified ? Signed::AppendCertified : Signed::Append;
    return record.facts->signatures > 0 && record.howSigned < least;
}

void addFacts(const DocumentRecord& record, SelectionSummary& summary)
{
    const DocumentFacts& facts = *record.facts;
    summary.shortest = summary.known == 0 ? facts.pages : std::min(summary.shortest, facts.pages);
    summary.longest = std::max(summary.longest, facts.pages);
    ++summary.known;
    summary.withoutBookmarks += facts.bookmarks == 0 ? 1 : 0;
    summary.withoutTitle += facts.title().isEmpty() ? 1 : 0;
    summary.encrypted += facts.isEncrypted ? 1 : 0;
    summary.signedDocuments += isKeptForSignatures(record) ? 1 : 0;
}

} // namespace

SelectionSummary SelectionSummary::of(const DocumentTable& table, const DocumentTable::Ids& ids)
{
    SelectionSummary summary;
    std::array<Counter, viewEntryCount> counters;
    for (const DocumentId id : ids) {
        const DocumentRecord* record = table.find(id);
        if (record == nullptr)
            continue;
        ++summary.documents;
        if (!record->facts)
            continue;
        addFacts(*record, summary);
        for (const viewentries::Description& each : viewentries::all())
            counters.at(static_cast<std::size_t>(each.entry)).add(record->facts->view, each.entry);
    }
    for (const viewentries::Description& each : viewentries::all())
        summary.entries.at(static_cast<std::size_t>(each.entry)) =
            counters.at(static_cast<std::size_t>(each.entry)).finish(each.entry);
    return summary;
}

QString SelectionSummary::textOf(ViewEntry entry) const
{
    const Entry& what = (*this)[entry];
    if (what.kind == Entry::Kind::Nothing)
        return {};
    if (what.kind == Entry::Kind::Same)
        return QCoreApplication::translate("SelectionSummary", "now %1").arg(what.value);
    std::vector<std::pair<int, QString>> parts;
    for (const auto& [value, count] : what.counts)
        parts.emplace_back(count, value);
    std::stable_sort(parts.begin(), parts.end(),
                     [](const auto& left, const auto& right) { return left.first > right.first; });
    QStringList texts;
    for (std::size_t place = 0; place < std::min(parts.size(), mostValues); ++place)
        texts += QCoreApplication::translate("SelectionSummary", "%1 (%2)")
                     .arg(parts[place].second, QLocale().toString(parts[place].first));
    if (parts.size() > mostValues)
        texts += QStringLiteral("…");
    return QCoreApplication::translate("SelectionSummary", "different: %1")
        .arg(texts.join(QCoreApplication::translate("SelectionSummary", ", ")));
}

} // namespace host::desktop
