#include "KidCounts.h"

#include "PageNodes.h"
#include "engine/document/Document.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace engine {

KidCounts::KidCounts(Document& document, Kids kids, int total)
    : m_document(&document), m_kids(std::move(kids)), m_total(total)
{}

std::optional<KidCounts> KidCounts::of(Document& document, const QPDFObjectHandle& node)
{
    const std::optional<int> total = statedCount(document, node);
    if (!total)
        return std::nullopt;
    KidCounts counts(document, document.kids(node), *total);
    if (counts.isList())
        return counts;
    counts.m_regular = counts.looksRegular();
    return counts.m_regular || counts.addUp() ? std::optional(std::move(counts)) : std::nullopt;
}

/// Whether the first and the last kid fit the node's count, and those where the counts change from the one's
/// to the other's: a count that is not the sum would change them elsewhere.
bool KidCounts::looksRegular()
{
    const int kids = m_kids.size();
    const auto early = kids > 0 ? pagesUnder(*m_document, m_kids, 0) : std::nullopt;
    const auto late = early ? pagesUnder(*m_document, m_kids, kids - 1) : std::nullopt;
    if (!late)
        return false;
    m_early = *early;
    m_late = *late;
    const long long behindEarly = m_total - static_cast<long long>(kids) * m_late;
    const long long difference = m_early - m_late;
    if (difference == 0)
        return behindEarly == 0;
    if (behindEarly % difference != 0 || behindEarly / difference < 1 || behindEarly / difference >= kids)
        return false;
    m_change = static_cast<int>(behindEarly / difference);
    return pagesUnder(*m_document, m_kids, m_change - 1) == early &&
           pagesUnder(*m_document, m_kids, m_change) == late;
}

bool KidCounts::addFromFront()
{
    const int kid = static_cast<int>(m_front.size()) - 1;
    const auto pages = pagesUnder(*m_document, m_kids, kid);
    if (m_regular && !fits(kid, pages))
        return addUp();
    if (!pages || *pages > m_total - m_front.back())
        return false;
    m_front.push_back(m_front.back() + *pages);
    return true;
}

bool KidCounts::addFromBack()
{
    const int kid = m_kids.size() - static_cast<int>(m_back.size());
    const auto pages = pagesUnder(*m_document, m_kids, kid);
    if (!fits(kid, pages))
        return addUp();
    m_back.push_back(m_back.back() + *pages);
    return true;
}

bool KidCounts::addUp()
{
    m_regular = false;
    while (static_cast<int>(m_front.size()) <= m_kids.size())
        if (!addFromFront())
            return false;
    return m_front.back() == m_total;
}

std::optional<KidCounts::Place> KidCounts::placeOf(int page)
{
    if (isList())
        return Place{page - 1, page - 1};
    const bool isLate = page > m_total / 2;
    while (m_regular && isLate && m_total - m_back.back() >= page)
        if (!addFromBack())
            return std::nullopt;
    if (m_regular && isLate) {
        const auto behind = std::upper_bound(m_back.begin(), m_back.end(), m_total - page);
        return Place{m_kids.size() - static_cast<int>(behind - m_back.begin()), m_total - *behind};
    }
    while (m_front.back() < page)
        if (!addFromFront())
            return std::nullopt;
    const auto next = std::lower_bound(m_front.begin(), m_front.end(), page);
    return Place{static_cast<int>(next - m_front.begin()) - 1, *std::prev(next)};
}

std::optional<int> KidCounts::pagesBefore(int kid)
{
    if (isList())
        return kid;
    const auto before = static_cast<std::size_t>(kid);
    const auto behind = static_cast<std::size_t>(m_kids.size() - kid);
    while (m_regular && behind < before && m_back.size() <= behind)
        if (!addFromBack())
            return std::nullopt;
    if (m_regular && behind < before)
        return m_total - m_back[behind];
    while (m_front.size() <= before)
        if (!addFromFront())
            return std::nullopt;
    return m_front[before];
}

} // namespace engine
