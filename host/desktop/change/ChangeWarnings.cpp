#include "ChangeWarnings.h"

#include "pdflibrary/ViewNumbers.h"

#include <QCoreApplication>

namespace host::desktop::changewarnings {

namespace {

QString say(const char* text, int count)
{
    return QCoreApplication::translate("ChangeWarnings", text, nullptr, count);
}

bool sets(const ViewChange& view, ViewEntry entry, const ViewValue& value)
{
    return view[entry] == value;
}

bool setsWindow(const ViewChange& view)
{
    for (const ViewEntry entry : {ViewEntry::HideToolbar, ViewEntry::HideMenubar, ViewEntry::HideWindowUI,
                                  ViewEntry::FitWindow, ViewEntry::CenterWindow})
        if (sets(view, entry, 1))
            return true;
    return false;
}

void aboutDocuments(const ViewChange& view, const SelectionSummary& summary,
                    std::vector<ChangeWarning>& warnings)
{
    const auto& page = view[ViewEntry::OpenPage];
    const int* number = page ? std::get_if<int>(&*page) : nullptr;
    if (sets(view, ViewEntry::PageMode, pdflibrary::BookmarksPanel) && summary.withoutBookmarks > 0)
        warnings.push_back(
            {say(QT_TRANSLATE_N_NOOP("ChangeWarnings",
                                     "%Ln document(s) have no bookmarks: the panel will be empty."),
                 summary.withoutBookmarks),
             DocumentFilter::Kind::NoBookmarks});
    if (sets(view, ViewEntry::DisplayDocTitle, 1) && !view[ViewEntry::Title] && summary.withoutTitle > 0)
        warnings.push_back(
            {say(QT_TRANSLATE_N_NOOP("ChangeWarnings", "%Ln document(s) have no title to show."),
                 summary.withoutTitle),
             DocumentFilter::Kind::NoTitle});
    if (number != nullptr && summary.known > 0 && *number > summary.shortest)
        warnings.push_back(
            {say(QT_TRANSLATE_N_NOOP("ChangeWarnings",
                                     "The shortest document has %Ln page(s); it cannot open there."),
                 summary.shortest),
             {}});
    if (summary.signedDocuments > 0)
        warnings.push_back(
            {say(QT_TRANSLATE_N_NOOP(
                     "ChangeWarnings",
                     "%Ln document(s) are signed and stay as they are, unless you say otherwise."),
                 summary.signedDocuments),
             DocumentFilter::Kind::Signed});
}

void aboutViewers(const ViewChange& view, std::vector<ChangeWarning>& warnings)
{
    if (sets(view, ViewEntry::PageMode, pdflibrary::FullScreen))
        warnings.push_back(
            {QCoreApplication::translate("ChangeWarnings",
                                         "Full screen: many viewers ask first, and browsers ignore it."),
             {}});
    if (setsWindow(view))
        warnings.push_back({QCoreApplication::translate(
                                "ChangeWarnings", "Browsers ignore what is said about windows and bars."),
                            {}});
    if (sets(view, ViewEntry::HideMenubar, 1))
        warnings.push_back({QCoreApplication::translate("ChangeWarnings",
                                                        "Without the menu bar, readers need the keyboard."),
                            {}});
}

} // namespace

std::vector<ChangeWarning> of(const ChangeDraft& draft, const SelectionSummary& summary)
{
    std::vector<ChangeWarning> warnings;
    if (draft.isEmpty())
        return warnings;
    aboutDocuments(draft.effect(), summary, warnings);
    aboutViewers(draft.effect(), warnings);
    return warnings;
}

} // namespace host::desktop::changewarnings
