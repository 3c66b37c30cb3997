#include "KidCounts.h"

#include "engine/document/Document.h"
#include "engine/document/PageNodes.h"

#include <algorithm>
#include <iterator>

namespace engine {

KidCounts::KidCounts(Document& document, const QPDFObjectHandle& node, Proof proof)
    : m_document(document), m_kids(document.kids(node)), m_total(statedCount(document, node).value_or(-1)),
      m_proof(proof), m_isList(m_total == m_kids.size() &&
                               (proof == Proof::Few || m_total == 0 || (isPage(0) && isPage(m_total - 1))))
{}

bool KidCounts::isPage(int kid)
{
    const std::optional<KidGlimpse> seen = glimpse(m_document, m_kids, kid);
    return (seen ? seen->kind : kindOf(m_document, m_document.kid(m_kids, kid))) == KidKind::Page;
}

bool KidCounts::isLikely()
{
    return m_isList || (m_kids.size() < m_total && pagesUnder(m_document, m_kids, 0) > 1) || isBorneOut();
}

bool KidCounts::isBorneOut()
{
    if (m_count == Count::Unproved && !m_isList && m_proof == Proof::Few && looksRegular() && haveFitted())
        m_count = Count::Regular;
    return m_isList || m_count == Count::Regular || addUp();
}

/// Whether the first and the last kid fit the node's count, and those where the counts change from the one's
/// to the other's: a count that is not the sum would change them elsewhere.
bool KidCounts::looksRegular()
{
    const int kids = m_kids.size();
    const auto early = kids > 0 ? pagesUnder(m_document, m_kids, 0) : std::nullopt;
    const auto late = early ? pagesUnder(m_document, m_kids, kids - 1) : std::nullopt;
    if (!late)
        return false;
    m_early = *early;
    m_late = *late;
    const long long behindEarly = m_total - static_cast<long long>(kids) * m_late;
    const long long difference = m_early - m_late;
    if (difference == 0)
        return behindEarly == 0;
    const long long change = behindEarly / difference;
    if (change * difference != behindEarly || change < 1 || change >= kids)
        return false;
    m_change = static_cast<int>(change);
    return pagesUnder(m_document, m_kids, m_change - 1) == early &&
           pagesUnder(m_document, m_kids, m_change) == late;
}

/// Whether the kids that were added up before it was known how they should be are so.
bool KidCounts::haveFitted() const
{
    for (std::size_t kid = 0; kid + 1 < m_front.size(); ++kid)
        if (m_front[kid + 1] - m_front[kid] != expected(static_cast<int>(kid)))
            return false;
    return true;
}

bool KidCounts::addFromFront()
{
    const int kid = static_cast<int>(m_front.size()) - 1;
    const auto pages = kid < m_kids.size() ? pagesUnder(m_document, m_kids, kid) : std::nullopt;
    const bool isPossible = pages && *pages <= m_total - m_front.back();
    if (m_count == Count::Regular && (!isPossible || *pages != expected(kid)))
        return addUp();
    if (!isPossible)
        return false;
    m_front.push_back(m_front.back() + *pages);
    return true;
}

bool KidCounts::addFromBack()
{
    const int kid = m_kids.size() - static_cast<int>(m_back.size());
    const auto pages = pagesUnder(m_document, m_kids, kid);
    if (!pages || *pages != expected(kid))
        return addUp();
    m_back.push_back(m_back.back() + *pages);
    return true;
}

bool KidCounts::addUp()
{
    if (m_count != Count::Sum && m_count != Count::Wrong) {
        m_count = Count::Wrong;
        while (static_cast<int>(m_front.size()) <= m_kids.size())
            if (!addFromFront())
                return false;
        if (m_front.back() == m_total)
            m_count = Count::Sum;
    }
    return m_count == Count::Sum;
}

std::optional<KidCounts::Place> KidCounts::placeOf(int page)
{
    if (m_isList)
        return Place{page - 1, page - 1};
    const bool isLate = page > m_total / 2;
    if (isLate && !isBorneOut())
        return std::nullopt;
    while (isLate && m_count == Count::Regular && m_total - m_back.back() >= page)
        if (!addFromBack())
            return std::nullopt;
    if (isLate && m_count == Count::Regular) {
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
    if (m_isList)
        return kid;
    const auto before = static_cast<std::size_t>(kid);
    const auto behind = static_cast<std::size_t>(m_kids.size() - kid);
    const bool isLate = behind < before;
    if (isLate && !isBorneOut())
        return std::nullopt;
    while (isLate && m_count == Count::Regular && m_back.size() <= behind)
        if (!addFromBack())
            return std::nullopt;
    if (isLate && m_count == Count::Regular)
        return m_total - m_back[behind];
    while (m_front.size() <= before)
        if (!addFromFront())
            return std::nullopt;
    return m_front[before];
}

} // namespace engine
