#include "ViewChange.h"

#include <algorithm>

namespace host {

namespace {

bool isPage(const ViewValue& openPage)
{
    return std::holds_alternative<int>(openPage) || std::holds_alternative<LastPage>(openPage);
}

} // namespace

bool ViewChange::isEmpty() const
{
    return std::none_of(m_values.begin(), m_values.end(),
                        [](const auto& value) { return value.has_value(); });
}

const std::optional<ViewValue>& ViewChange::operator[](ViewEntry entry) const
{
    return m_values.at(static_cast<std::size_t>(entry));
}

int ViewChange::number(ViewEntry entry, int absent) const
{
    const auto& value = (*this)[entry];
    return value ? numberOf(*value, absent) : absent;
}

void ViewChange::set(ViewEntry entry, ViewValue value)
{
    m_values.at(static_cast<std::size_t>(entry)) = std::move(value);
}

void ViewChange::remove(ViewEntry entry)
{
    m_values.at(static_cast<std::size_t>(entry)).reset();
}

void ViewChange::add(const ViewChange& other)
{
    const auto& page = other[ViewEntry::OpenPage];
    if (page && !isPage(*page))
        remove(ViewEntry::Zoom);
    if (const auto& own = (*this)[ViewEntry::OpenPage]; other[ViewEntry::Zoom] && own && !isPage(*own))
        remove(ViewEntry::OpenPage);
    for (std::size_t index = 0; index < viewEntryCount; ++index)
        if (other.m_values.at(index))
            m_values.at(index) = other.m_values.at(index);
    m_keepsTitles = m_keepsTitles || other.m_keepsTitles;
}

std::string ViewChange::contradiction() const
{
    if ((*this)[ViewEntry::OpenPage] == ViewValue(Unset()) && (*this)[ViewEntry::Zoom])
        return "--open-page unset takes the magnification away as well; it excludes --zoom";
    if (m_keepsTitles && !(*this)[ViewEntry::Title])
        return "--title-if-missing goes with --title or --title-from-file-name";
    return {};
}

} // namespace host
