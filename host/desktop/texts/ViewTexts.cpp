#include "ViewTexts.h"

#include "pdflibrary/ViewNumbers.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>

namespace host::desktop::viewtexts {

namespace {

struct EntryText
{
    ViewEntry entry;
    const char* name;
    const char* help;
};

// clang-format off
constexpr std::array<EntryText, viewEntryCount> entryTexts{{
    {ViewEntry::PageMode, QT_TRANSLATE_NOOP("ViewTexts", "Panel"),
     QT_TRANSLATE_NOOP("ViewTexts", "What stands beside the page when the document opens: nothing, its bookmarks, small pictures of its pages, its layers or its attachments. Full screen shows the page alone, as in a presentation. Bookmarks are widely followed, full screen only after the viewer has asked.")},
    {ViewEntry::PageLayout, QT_TRANSLATE_NOOP("ViewTexts", "Layout"),
     QT_TRANSLATE_NOOP("ViewTexts", "How the pages are set out. In columns they follow each other while scrolling; single pages and pairs are turned. Simple viewers know fewer layouts or keep the one used last.")},
    {ViewEntry::OpenPage, QT_TRANSLATE_NOOP("ViewTexts", "Page"),
     QT_TRANSLATE_NOOP("ViewTexts", "The page that is shown first. It counts the sheets from the beginning, whatever numbers are printed on them. Widely followed, but many viewers return to where the reader stopped last.")},
    {ViewEntry::Zoom, QT_TRANSLATE_NOOP("ViewTexts", "Zoom"),
     QT_TRANSLATE_NOOP("ViewTexts", "How large the first page is shown. Fitting the page or its width and percentages are widely followed; fitting the height or what is visible is rarer.")},
    {ViewEntry::HideToolbar, QT_TRANSLATE_NOOP("ViewTexts", "Tool bars"),
     QT_TRANSLATE_NOOP("ViewTexts", "Whether the viewer hides its tool bars. Viewers in web browsers ignore this.")},
    {ViewEntry::HideMenubar, QT_TRANSLATE_NOOP("ViewTexts", "Menu bar"),
     QT_TRANSLATE_NOOP("ViewTexts", "Whether the viewer hides its menu bar. Readers then need the keyboard. Viewers in web browsers ignore this.")},
    {ViewEntry::HideWindowUI, QT_TRANSLATE_NOOP("ViewTexts", "Controls"),
     QT_TRANSLATE_NOOP("ViewTexts", "Whether the viewer hides scroll bars and other controls. Viewers in web browsers ignore this.")},
    {ViewEntry::FitWindow, QT_TRANSLATE_NOOP("ViewTexts", "Window size"),
     QT_TRANSLATE_NOOP("ViewTexts", "Whether the window takes the size of the first page. Viewers in web browsers and those with tabs ignore this.")},
    {ViewEntry::CenterWindow, QT_TRANSLATE_NOOP("ViewTexts", "Window place"),
     QT_TRANSLATE_NOOP("ViewTexts", "Whether the window stands in the middle of the screen. Viewers in web browsers and those with tabs ignore this.")},
    {ViewEntry::DisplayDocTitle, QT_TRANSLATE_NOOP("ViewTexts", "Title bar"),
     QT_TRANSLATE_NOOP("ViewTexts", "What the title bar of the viewer says: the name of the file, or the document's own title. Accessibility rules ask for the title.")},
    {ViewEntry::NonFullScreenPageMode, QT_TRANSLATE_NOOP("ViewTexts", "After full screen"),
     QT_TRANSLATE_NOOP("ViewTexts", "The panel that shows once full screen is left.")},
    {ViewEntry::Direction, QT_TRANSLATE_NOOP("ViewTexts", "Reading direction"),
     QT_TRANSLATE_NOOP("ViewTexts", "Which page of a pair stands on the left. It does not change the text.")},
    {ViewEntry::PrintScaling, QT_TRANSLATE_NOOP("ViewTexts", "Print scaling"),
     QT_TRANSLATE_NOOP("ViewTexts", "How the print dialog scales pages at first. Forms and labels want none.")},
    {ViewEntry::Duplex, QT_TRANSLATE_NOOP("ViewTexts", "Two-sided printing"),
     QT_TRANSLATE_NOOP("ViewTexts", "How the print dialog uses the two sides of the paper at first.")},
    {ViewEntry::PickTrayByPDFSize, QT_TRANSLATE_NOOP("ViewTexts", "Paper tray"),
     QT_TRANSLATE_NOOP("ViewTexts", "Whether the size of the page selects the paper tray.")},
    {ViewEntry::NumCopies, QT_TRANSLATE_NOOP("ViewTexts", "Copies"),
     QT_TRANSLATE_NOOP("ViewTexts", "The number of copies that the print dialog proposes.")},
    {ViewEntry::Title, QT_TRANSLATE_NOOP("ViewTexts", "Title"),
     QT_TRANSLATE_NOOP("ViewTexts", "The document's title, as its properties and the title bar show it.")},
    {ViewEntry::Lang, QT_TRANSLATE_NOOP("ViewTexts", "Language"),
     QT_TRANSLATE_NOOP("ViewTexts", "The document's language, for example en-GB. Screen readers choose the voice by it.")},
}};

constexpr bool isRepeated(const EntryText& row, const EntryText& next)
{
    return row.entry >= next.entry;
}
static_assert(std::adjacent_find(entryTexts.begin(), entryTexts.end(), isRepeated) == entryTexts.end(),
              "a row for each entry, in their order");

struct ValueText
{
    ViewEntry entry;
    int number;
    const char* text;
};

const ValueText valueTexts[] = {
    {ViewEntry::PageMode, pdflibrary::PageOnly, QT_TRANSLATE_NOOP("ViewTexts", "None")},
    {ViewEntry::PageMode, pdflibrary::BookmarksPanel, QT_TRANSLATE_NOOP("ViewTexts", "Bookmarks")},
    {ViewEntry::PageMode, pdflibrary::PagesPanel, QT_TRANSLATE_NOOP("ViewTexts", "Pages")},
    {ViewEntry::PageMode, pdflibrary::LayersPanel, QT_TRANSLATE_NOOP("ViewTexts", "Layers")},
    {ViewEntry::PageMode, pdflibrary::AttachmentsPanel, QT_TRANSLATE_NOOP("ViewTexts", "Attachments")},
    {ViewEntry::PageMode, pdflibrary::FullScreen, QT_TRANSLATE_NOOP("ViewTexts", "Full screen")},
    {ViewEntry::PageLayout, pdflibrary::SinglePage, QT_TRANSLATE_NOOP("ViewTexts", "Single page")},
    {ViewEntry::PageLayout, pdflibrary::OneColumn, QT_TRANSLATE_NOOP("ViewTexts", "One column")},
    {ViewEntry::PageLayout, pdflibrary::TwoColumnLeft, QT_TRANSLATE_NOOP("ViewTexts", "Two columns, odd left")},
    {ViewEntry::PageLayout, pdflibrary::TwoColumnRight, QT_TRANSLATE_NOOP("ViewTexts", "Two columns, odd right")},
    {ViewEntry::PageLayout, pdflibrary::TwoPageLeft, QT_TRANSLATE_NOOP("ViewTexts", "Two pages, odd left")},
    {ViewEntry::PageLayout, pdflibrary::TwoPageRight, QT_TRANSLATE_NOOP("ViewTexts", "Two pages, odd right")},
    {ViewEntry::HideToolbar, 1, QT_TRANSLATE_NOOP("ViewTexts", "Hidden")},
    {ViewEntry::HideToolbar, 0, QT_TRANSLATE_NOOP("ViewTexts", "Shown")},
    {ViewEntry::HideMenubar, 1, QT_TRANSLATE_NOOP("ViewTexts", "Hidden")},
    {ViewEntry::HideMenubar, 0, QT_TRANSLATE_NOOP("ViewTexts", "Shown")},
    {ViewEntry::HideWindowUI, 1, QT_TRANSLATE_NOOP("ViewTexts", "Hidden")},
    {ViewEntry::HideWindowUI, 0, QT_TRANSLATE_NOOP("ViewTexts", "Shown")},
    {ViewEntry::FitWindow, 1, QT_TRANSLATE_NOOP("ViewTexts", "As the first page")},
    {ViewEntry::FitWindow, 0, QT_TRANSLATE_NOOP("ViewTexts", "As it was")},
    {ViewEntry::CenterWindow, 1, QT_TRANSLATE_NOOP("ViewTexts", "Middle of the screen")},
    {ViewEntry::CenterWindow, 0, QT_TRANSLATE_NOOP("ViewTexts", "Where it was")},
    {ViewEntry::DisplayDocTitle, 1, QT_TRANSLATE_NOOP("ViewTexts", "Document title")},
    {ViewEntry::DisplayDocTitle, 0, QT_TRANSLATE_NOOP("ViewTexts", "File name")},
    {ViewEntry::NonFullScreenPageMode, pdflibrary::PageOnly, QT_TRANSLATE_NOOP("ViewTexts", "None")},
    {ViewEntry::NonFullScreenPageMode, pdflibrary::BookmarksPanel, QT_TRANSLATE_NOOP("ViewTexts", "Bookmarks")},
    {ViewEntry::NonFullScreenPageMode, pdflibrary::PagesPanel, QT_TRANSLATE_NOOP("ViewTexts", "Pages")},
    {ViewEntry::NonFullScreenPageMode, pdflibrary::LayersPanel, QT_TRANSLATE_NOOP("ViewTexts", "Layers")},
    {ViewEntry::NonFullScreenPageMode, pdflibrary::AttachmentsPanel, QT_TRANSLATE_NOOP("ViewTexts", "Attachments")},
    {ViewEntry::Direction, 0, QT_TRANSLATE_NOOP("ViewTexts", "Left to right")},
    {ViewEntry::Direction, 1, QT_TRANSLATE_NOOP("ViewTexts", "Right to left")},
    {ViewEntry::PrintScaling, 0, QT_TRANSLATE_NOOP("ViewTexts", "No scaling")},
    {ViewEntry::PrintScaling, 1, QT_TRANSLATE_NOOP("ViewTexts", "As the viewer likes")},
    {ViewEntry::Duplex, 0, QT_TRANSLATE_NOOP("ViewTexts", "One side")},
    {ViewEntry::Duplex, 2, QT_TRANSLATE_NOOP("ViewTexts", "Two sides, long edge")},
    {ViewEntry::Duplex, 1, QT_TRANSLATE_NOOP("ViewTexts", "Two sides, short edge")},
    {ViewEntry::PickTrayByPDFSize, 1, QT_TRANSLATE_NOOP("ViewTexts", "By the page size")},
    {ViewEntry::PickTrayByPDFSize, 0, QT_TRANSLATE_NOOP("ViewTexts", "As the printer likes")},
};

const std::pair<int, const char*> zoomTexts[] = {
    {pdflibrary::FitPage, QT_TRANSLATE_NOOP("ViewTexts", "Fit page")},
    {pdflibrary::FitWidth, QT_TRANSLATE_NOOP("ViewTexts", "Fit width")},
    {pdflibrary::FitHeight, QT_TRANSLATE_NOOP("ViewTexts", "Fit height")},
    {pdflibrary::FitVisible, QT_TRANSLATE_NOOP("ViewTexts", "Fit visible")},
    {pdflibrary::Zoomed, QT_TRANSLATE_NOOP("ViewTexts", "As the viewer likes")},
};
// clang-format on

const double percentages[] = {50, 75, 100, 125, 150, 200};

QString translate(const char* text)
{
    return QCoreApplication::translate("ViewTexts", text);
}

QString zoomText(const Magnification& zoom)
{
    if (zoom.percent > 0) //: A magnification, %1 is the number.
        return QCoreApplication::translate("ViewTexts", "%1 %").arg(QLocale().toString(zoom.percent, 'g', 6));
    for (const auto& [type, text] : zoomTexts)
        if (type == zoom.type)
            return translate(text);
    return QString::number(zoom.type);
}

QString numberText(ViewEntry entry, int number)
{
    for (const ValueText& each : valueTexts)
        if (each.entry == entry && each.number == number)
            return translate(each.text);
    return QLocale().toString(number);
}

} // namespace

QString nameOf(ViewEntry entry)
{
    return translate(entryTexts.at(static_cast<std::size_t>(entry)).name);
}

QString helpOf(ViewEntry entry)
{
    return translate(entryTexts.at(static_cast<std::size_t>(entry)).help);
}

QString unset()
{
    return QCoreApplication::translate("ViewTexts", "Not set");
}

QString valueOf(ViewEntry entry, const ViewValue& value)
{
    if (const auto* number = std::get_if<int>(&value))
        return numberText(entry, *number);
    if (const auto* zoom = std::get_if<Magnification>(&value))
        return zoomText(*zoom);
    if (const auto* text = std::get_if<std::string>(&value))
        return QString::fromStdString(*text).simplified();
    if (std::holds_alternative<LastPage>(value))
        return QCoreApplication::translate("ViewTexts", "Last");
    if (std::holds_alternative<FileNameAsTitle>(value))
        return QCoreApplication::translate("ViewTexts", "From the file name");
    return unset();
}

std::vector<ViewValue> choices(ViewEntry entry)
{
    std::vector<ViewValue> values;
    for (const ValueText& each : valueTexts)
        if (each.entry == entry)
            values.emplace_back(each.number);
    if (entry == ViewEntry::Zoom) {
        for (const auto& [type, text] : zoomTexts)
            values.emplace_back(Magnification{type, 0});
        for (const double percent : percentages)
            values.emplace_back(Magnification{pdflibrary::Zoomed, percent});
    }
    return values;
}

QString actionOf(const QString& kind)
{
    if (kind == "JavaScript")
        return QCoreApplication::translate("ViewTexts", "Runs a script");
    if (kind == "URI")
        return QCoreApplication::translate("ViewTexts", "Opens a web page");
    //: %1 is the kind of an action as the document names it, such as Launch.
    return QCoreApplication::translate("ViewTexts", "Other action (%1)").arg(kind);
}

} // namespace host::desktop::viewtexts
