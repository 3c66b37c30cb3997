#include "KidList.h"

#include "engine/syntax/SyntaxScanner.h"

#include <climits>
#include <cstring>

namespace engine {

namespace {

const int kidsPerMark = 32;

/// Steps over a reference as nearly all are written. \returns null at any other.
const char* behindUsualReference(const char* at, const char* end)
{
    const char* next = at;
    while (next < end && isDigit(*next))
        ++next;
    const bool isNumber = next - at > 0 && next - at < 10 && *at != '0'; // below INT_MAX
    const bool isUsual = isNumber && end - next > 4 && std::memcmp(next, " 0 R", 4) == 0;
    return isUsual && !isRegular(next[4]) ? next + 4 : nullptr;
}

const char* skipSpace(const char* at, const char* end)
{
    while (at < end && isSpace(*at))
        ++at;
    return at;
}

} // namespace

std::shared_ptr<const KidList> KidList::of(std::string_view array)
{
    if (!array.starts_with('[') || !array.ends_with(']'))
        return nullptr;
    std::shared_ptr<KidList> list(new KidList(array));
    return list->count() ? list : nullptr;
}

bool KidList::count()
{
    const char* const begin = m_text.data();
    const char* const end = begin + m_text.size() - 1;
    m_marks.reserve(m_text.size() / (10 * kidsPerMark) + 1);
    for (const char* next = skipSpace(begin + 1, end); next < end; next = skipSpace(next, end)) {
        if (m_size == INT_MAX)
            return false;
        if (m_size++ % kidsPerMark == 0)
            m_marks.push_back(static_cast<std::size_t>(next - begin));
        const char* behind = behindUsualReference(next, end + 1);
        if (behind == nullptr) {
            SyntaxScanner scanner(m_text, static_cast<std::size_t>(next - begin));
            if (!scanner.reference())
                return false;
            behind = begin + scanner.position();
        }
        next = behind;
    }
    return true;
}

/// Where a kid's reference begins, or the space before it.
std::size_t KidList::startOf(int kid) const
{
    if (m_next == 0 || kid < m_nextKid || kid - m_nextKid >= kidsPerMark) {
        m_nextKid = kid - kid % kidsPerMark;
        m_next = m_marks[static_cast<std::size_t>(kid / kidsPerMark)];
    }
    SyntaxScanner scanner(m_text, m_next);
    for (; m_nextKid < kid; ++m_nextKid) {
        scanner.skipSpace();
        scanner.reference();
    }
    return m_next = scanner.position();
}

QPDFObjGen KidList::id(int kid) const
{
    SyntaxScanner scanner(m_text, startOf(kid));
    scanner.skipSpace();
    const auto reference = scanner.reference();
    m_next = scanner.position();
    m_nextKid = kid + 1;
    return QPDFObjGen(reference->number, reference->generation);
}

int KidList::placeOf(QPDFObjGen id) const
{
    for (int kid = 0; kid < m_size; ++kid)
        if (this->id(kid) == id)
            return kid;
    return -1;
}

} // namespace engine
