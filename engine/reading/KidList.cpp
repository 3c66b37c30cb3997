#include "KidList.h"

#include "engine/syntax/SyntaxScanner.h"

#include <algorithm>
#include <climits>

namespace engine {

namespace {

const int kidsPerMark = 32;

const char* skipSpace(const char* at, const char* end)
{
    while (at < end && isSpace(*at))
        ++at;
    return at;
}

} // namespace

std::shared_ptr<const KidList> KidList::read(std::string_view text)
{
    std::shared_ptr<KidList> list(new KidList);
    return text.starts_with('[') && list->count(text) ? list : nullptr;
}

bool KidList::count(std::string_view text)
{
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const char* next = skipSpace(begin + 1, end);
    for (; next < end && *next != ']'; next = skipSpace(next, end)) {
        if (m_size == INT_MAX)
            return false;
        if (m_size++ % kidsPerMark == 0)
            m_marks.push_back(static_cast<std::size_t>(next - begin));
        const char* behind = SyntaxScanner::behindUsualReference(next, end);
        if (behind == nullptr) {
            SyntaxScanner scanner(text, static_cast<std::size_t>(next - begin));
            if (!scanner.reference())
                return false;
            behind = begin + scanner.position();
        }
        next = behind;
    }
    m_text.assign(begin, std::min(next + 1, end));
    return next < end;
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
