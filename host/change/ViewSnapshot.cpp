#include "ViewSnapshot.h"

#include "PresentView.h"

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewNumbers.h"

namespace host {

namespace {

std::size_t indexOf(ViewEntry entry)
{
    return static_cast<std::size_t>(entry);
}

} // namespace

ViewSnapshot::ViewSnapshot(TelvarPDFLibraryCPDylibCPP1311& library)
{
    const PresentView view(library);
    for (const viewentries::Description& each : viewentries::all())
        m_words.at(indexOf(each.entry)) = viewdifference::wordOf(each.entry, view[each.entry]);
    const int destination = library.GetOpenActionDestination();
    if (destination == 0) {
        if (const std::string action = view.openAction(); !action.empty())
            m_words.at(indexOf(ViewEntry::OpenPage)) = action;
        return;
    }
    for (std::size_t side = 0; side < m_place.size(); ++side)
        m_place.at(side) =
            library.GetDestValue(destination, pdflibrary::DestinationLeft + static_cast<int>(side));
}

std::vector<ViewDifference> ViewSnapshot::differencesTo(const ViewSnapshot& later) const
{
    std::vector<ViewDifference> differences;
    for (const viewentries::Description& each : viewentries::all()) {
        const std::size_t index = indexOf(each.entry);
        if (m_words.at(index) != later.m_words.at(index))
            differences.push_back({each.entry, m_words.at(index), later.m_words.at(index)});
        else if (each.entry == ViewEntry::OpenPage && m_place != later.m_place)
            differences.push_back(
                {each.entry, m_words.at(index), m_words.at(index) + ", at another place on it"});
    }
    return differences;
}

} // namespace host
