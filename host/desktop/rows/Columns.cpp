#include "Columns.h"

#include <QCoreApplication>

#include <array>

namespace host::desktop::columns {

namespace {

constexpr ViewEntry title[] = {ViewEntry::Title};
constexpr ViewEntry panel[] = {ViewEntry::PageMode};
constexpr ViewEntry layout[] = {ViewEntry::PageLayout};
constexpr ViewEntry page[] = {ViewEntry::OpenPage};
constexpr ViewEntry zoom[] = {ViewEntry::Zoom};
constexpr ViewEntry titleBar[] = {ViewEntry::DisplayDocTitle};
constexpr ViewEntry window[] = {
    ViewEntry::HideToolbar,       ViewEntry::HideMenubar,  ViewEntry::HideWindowUI,
    ViewEntry::FitWindow,         ViewEntry::CenterWindow, ViewEntry::NonFullScreenPageMode,
    ViewEntry::Direction,         ViewEntry::PrintScaling, ViewEntry::Duplex,
    ViewEntry::PickTrayByPDFSize, ViewEntry::NumCopies,    ViewEntry::Lang,
};

// clang-format off
const std::array<ColumnRow, columnCount> rows{{
    {Column::Name, "name", QT_TRANSLATE_NOOP("Columns", "Name"),
     QT_TRANSLATE_NOOP("Columns", "The name of the file. The sign before it says what a run would do or did."), 28, false, true, {}},
    {Column::Folder, "folder", QT_TRANSLATE_NOOP("Columns", "Folder"),
     QT_TRANSLATE_NOOP("Columns", "Where the document lies."), 24, false, false, {}},
    {Column::Title, "title", QT_TRANSLATE_NOOP("Columns", "Title"),
     QT_TRANSLATE_NOOP("Columns", "The document's own title, from its properties."), 16, false, true, title},
    {Column::Pages, "pages", QT_TRANSLATE_NOOP("Columns", "Pages"),
     QT_TRANSLATE_NOOP("Columns", "How many pages the document has."), 7, true, false, {}},
    {Column::Bookmarks, "bookmarks", QT_TRANSLATE_NOOP("Columns", "Bookmarks"),
     QT_TRANSLATE_NOOP("Columns", "How many bookmarks the document has."), 10, true, false, {}},
    {Column::Panel, "panel", QT_TRANSLATE_NOOP("Columns", "Panel"),
     QT_TRANSLATE_NOOP("Columns", "What stands beside the page when the document opens."), 20, false, true, panel},
    {Column::Layout, "layout", QT_TRANSLATE_NOOP("Columns", "Layout"),
     QT_TRANSLATE_NOOP("Columns", "How the pages are set out."), 18, false, false, layout},
    {Column::Page, "page", QT_TRANSLATE_NOOP("Columns", "Page"),
     QT_TRANSLATE_NOOP("Columns", "The page that is shown first."), 7, true, true, page},
    {Column::Zoom, "zoom", QT_TRANSLATE_NOOP("Columns", "Zoom"),
     QT_TRANSLATE_NOOP("Columns", "How large the first page is shown."), 14, false, false, zoom},
    {Column::TitleBar, "titlebar", QT_TRANSLATE_NOOP("Columns", "Title Bar"),
     QT_TRANSLATE_NOOP("Columns", "Whether the title bar of the viewer says the title or the name of the file."), 20, false, true, titleBar},
    {Column::Window, "window", QT_TRANSLATE_NOOP("Columns", "Window Options"),
     QT_TRANSLATE_NOOP("Columns", "What else the document asks for: hidden bars, the size and place of the window, printing."), 20, false, false, window},
    {Column::Signed, "signed", QT_TRANSLATE_NOOP("Columns", "Signed"),
     QT_TRANSLATE_NOOP("Columns", "Viewers report any change of a signed document."), 9, false, false, {}},
    {Column::Certified, "certified", QT_TRANSLATE_NOOP("Columns", "Certified"),
     QT_TRANSLATE_NOOP("Columns", "A certified document says what may be done to it."), 9, false, false, {}},
    {Column::Encrypted, "encrypted", QT_TRANSLATE_NOOP("Columns", "Encrypted"),
     QT_TRANSLATE_NOOP("Columns", "An encrypted document may need a password to be read or changed."), 9, false, false, {}},
    {Column::State, "state", QT_TRANSLATE_NOOP("Columns", "State"),
     QT_TRANSLATE_NOOP("Columns", "What a run would do to the document, or did, and why not."), 28, false, true, {}},
}};
// clang-format on

} // namespace

const ColumnRow& describe(Column column)
{
    return rows.at(static_cast<std::size_t>(column));
}

QString titleOf(Column column)
{
    return QCoreApplication::translate("Columns", describe(column).title);
}

QString helpOf(Column column)
{
    return QCoreApplication::translate("Columns", describe(column).help);
}

} // namespace host::desktop::columns
