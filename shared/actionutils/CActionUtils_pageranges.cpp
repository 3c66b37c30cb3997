#include "CActionUtils.h"

#include <QVector>

#include <algorithm>
#include <climits>
#include <new>

namespace {

/// Qt's lists address at most 2 GB, with a pointer's size for each entry.
const qint64 longestPageList = (INT_MAX - 64) / static_cast<int>(sizeof(void*));

struct PageRun
{
    int first;
    int last;
};

/// Where in a page range the characters read so far lead to.
enum State { ItemStart, FirstNumber, AfterDash, LastNumber, Refused };
enum CharacterKind { Zero, Digit, Comma, Dash, Other };

// clang-format off
const State nextState[][5] = {
    //                 0            1 to 9       ,          -          anything else
    /* ItemStart */   {Refused,     FirstNumber, Refused,   Refused,   Refused},
    /* FirstNumber */ {FirstNumber, FirstNumber, ItemStart, AfterDash, Refused},
    /* AfterDash */   {Refused,     LastNumber,  Refused,   Refused,   Refused},
    /* LastNumber */  {LastNumber,  LastNumber,  ItemStart, Refused,   Refused},
};
// clang-format on

CharacterKind kindOf(QChar character)
{
    if (character.isNumber())
        return character == '0' ? Zero : Digit;
    return character == ',' ? Comma : character == '-' ? Dash : Other;
}

bool ascends(const QStringRef& item)
{
    const int dash = item.indexOf('-');
    return dash < 0 || item.left(dash).toInt() < item.mid(dash + 1).toInt();
}

QVector<PageRun> runsOf(const QString& text, int pageCount)
{
    QVector<PageRun> runs;
    for (const QStringRef& item : text.splitRef(',')) {
        const int dash = item.indexOf('-');
        const int first = item.left(dash).toInt();
        const int last = dash < 0 ? first : item.mid(dash + 1).toInt();
        if (first <= pageCount && first <= last)
            runs.append({first, last});
    }
    return runs;
}

/// Ascending and without overlaps, so that a page named a thousand times costs no more than once.
QVector<PageRun> united(QVector<PageRun> runs)
{
    std::sort(runs.begin(), runs.end(), [](PageRun a, PageRun b) { return a.first < b.first; });
    QVector<PageRun> result;
    for (const PageRun& run : qAsConst(runs)) {
        if (!result.isEmpty() && run.first <= result.last().last)
            result.last().last = std::max(result.last().last, run.last);
        else
            result.append(run);
    }
    return result;
}

/// What is left of the runs when neither odd nor even pages are wanted. A negative odd number leaves the
/// remainder -1, so it does not count as an odd page.
void dropCountedPages(QVector<PageRun>& runs)
{
    for (PageRun& run : runs)
        run.last = std::min(run.last, -1);
}

/// How many entries the list would have.
qint64 sizeWith(const QVector<PageRun>& runs, bool half, const QList<int>& pages)
{
    qint64 size = pages.size();
    for (const PageRun& run : runs)
        size += std::max<qint64>(0, (qint64(run.last) - run.first) / (half ? 2 : 1) + 1);
    return size;
}

struct Skipped
{
    bool odd;
    bool even;

    bool has(int page) const { return (odd && page % 2 == 1) || (even && page % 2 == 0); }
};

/// Makes room for what the runs may add. \returns false, with the list as it was, where memory cannot hold
/// it.
bool reserveFor(const QVector<PageRun>& runs, Skipped skipped, QList<int>* pages)
{
    const qint64 size = sizeWith(runs, skipped.odd || skipped.even, *pages);
    if (size > longestPageList)
        return false;
    try {
        pages->reserve(static_cast<int>(size));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// Of the items as many as memory can hold, the shortest ones first; united.
QVector<PageRun> heldRuns(QVector<PageRun> items, Skipped skipped, QList<int>* pages)
{
    if (const QVector<PageRun> all = united(items); reserveFor(all, skipped, pages))
        return all;
    std::sort(items.begin(), items.end(),
              [](PageRun a, PageRun b) { return qint64(a.last) - a.first < qint64(b.last) - b.first; });
    int held = 0;
    for (int beyond = items.size(); held + 1 < beyond;) {
        const int middle = held + (beyond - held) / 2;
        (reserveFor(united(items.mid(0, middle)), skipped, pages) ? held : beyond) = middle;
    }
    return united(items.mid(0, held));
}

/// Adds what an ascending list with room enough does not have yet.
void add(const QVector<PageRun>& runs, Skipped skipped, QList<int>* pages)
{
    const int before = pages->size();
    for (const PageRun& run : runs) {
        for (qint64 wide = run.first; wide <= run.last; ++wide) {
            const int page = static_cast<int>(wide);
            const auto end = pages->cbegin() + before;
            if (!skipped.has(page) && !std::binary_search(pages->cbegin(), end, page))
                pages->append(page);
        }
    }
}

} // namespace

bool CActionUtils::ValidatePageRange(QString pageRange, bool allowReverse)
{
    pageRange.remove(' ');
    State state = ItemStart;
    for (const QChar character : qAsConst(pageRange)) {
        state = nextState[state][kindOf(character)];
        if (state == Refused)
            return false;
    }
    // A comma may stand at the end, but not a dash.
    if (pageRange.isEmpty() || state == AfterDash)
        return false;
    const QVector<QStringRef> items = pageRange.splitRef(',');
    return allowReverse || std::all_of(items.begin(), items.end(), ascends);
}

bool CActionUtils::ValidateSplitPageRange(QString splitRange)
{
    const QStringList parts = splitRange.split(';');
    return std::all_of(parts.begin(), parts.end(),
                       [](const QString& part) { return ValidatePageRange(part, true); });
}

bool CActionUtils::GetPageList(const QString& pageRange, int pageCount, bool skipOdd, bool skipEven,
                               QList<int>* pages)
{
    if (pageRange.isEmpty())
        return false;
    QVector<PageRun> items = runsOf(pageRange, pageCount);
    if (skipOdd && skipEven)
        dropCountedPages(items);
    std::sort(pages->begin(), pages->end());
    const Skipped skipped{skipOdd, skipEven};
    add(heldRuns(items, skipped, pages), skipped, pages);
    std::sort(pages->begin(), pages->end());
    return true;
}

void CActionUtils::CollectPageList(QList<int>* pages, QList<int>* runs)
{
    for (int end = pages->size(); end > 0;) {
        int first = end - 1;
        while (first > 0 && qint64(pages->at(first - 1)) + 1 == pages->at(first))
            --first;
        runs->append(pages->at(first));
        runs->append(end - first);
        end = first;
    }
}
