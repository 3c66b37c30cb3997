#include "ViewEntries.h"

#include "pdflibrary/ViewNumbers.h"

#include <algorithm>

namespace host::viewentries {

namespace {

// clang-format off
constexpr Name pageModes[] = {
    {pdflibrary::PageOnly,         "UseNone",        "use-none",        "none"},
    {pdflibrary::BookmarksPanel,   "UseOutlines",    "use-outlines",    "bookmarks"},
    {pdflibrary::PagesPanel,       "UseThumbs",      "use-thumbs",      "thumbnails"},
    {pdflibrary::LayersPanel,      "UseOC",          "use-oc",          "layers"},
    {pdflibrary::AttachmentsPanel, "UseAttachments", "use-attachments", "attachments"},
    {pdflibrary::FullScreen,       "FullScreen",     "full-screen",     nullptr},
};

constexpr std::span<const Name> panels = std::span(pageModes).first<5>(); // all but full screen

constexpr Name pageLayouts[] = {
    {pdflibrary::SinglePage,     "SinglePage",     "single-page",      nullptr},
    {pdflibrary::OneColumn,      "OneColumn",      "one-column",       nullptr},
    {pdflibrary::TwoColumnLeft,  "TwoColumnLeft",  "two-column-left",  nullptr},
    {pdflibrary::TwoColumnRight, "TwoColumnRight", "two-column-right", nullptr},
    {pdflibrary::TwoPageLeft,    "TwoPageLeft",    "two-page-left",    nullptr},
    {pdflibrary::TwoPageRight,   "TwoPageRight",   "two-page-right",   nullptr},
};

constexpr Name zooms[] = {
    {pdflibrary::Zoomed,     "XYZ",   "default",     nullptr},
    {pdflibrary::FitPage,    "Fit",   "fit-page",    nullptr},
    {pdflibrary::FitWidth,   "FitH",  "fit-width",   nullptr},
    {pdflibrary::FitHeight,  "FitV",  "fit-height",  nullptr},
    {pdflibrary::FitVisible, "FitBH", "fit-visible", nullptr},
    {pdflibrary::FitBox, "FitB", "fit-box", nullptr},
    {pdflibrary::FitBoxHeight, "FitBV", "fit-box-height", nullptr},
    {pdflibrary::FitRectangle, "FitR", "fit-rectangle", nullptr},
};

constexpr Name directions[] = {
    {0, "L2R", "l2r", nullptr},
    {1, "R2L", "r2l", nullptr},
};

constexpr Name scalings[] = {
    {0, "None",       "none",        nullptr},
    {1, "AppDefault", "app-default", nullptr},
};

constexpr Name duplexes[] = {
    {0, "Simplex",             "simplex",                nullptr},
    {1, "DuplexFlipShortEdge", "duplex-flip-short-edge", nullptr},
    {2, "DuplexFlipLongEdge",  "duplex-flip-long-edge",  nullptr},
};

const std::array<Description, viewEntryCount> entries{{
    {ViewEntry::PageMode, Kind::Name, "PageMode", "page-mode", "MODE",
     "the panel beside the page, or full screen", "", 0, pageModes, true},
    {ViewEntry::PageLayout, Kind::Name, "PageLayout", "page-layout", "LAYOUT",
     "how the pages are laid out", "", 0, pageLayouts, true},
    {ViewEntry::OpenPage, Kind::Page, "page", "open-page", "N|last|unset",
     "the page that is shown first", "with unset the open action is taken away", 0, {}, true},
    {ViewEntry::Zoom, Kind::Magnification, "zoom", "zoom", "ZOOM",
     "the magnification of the first view", "a percentage from 1% to 6400%, or how the page fits", 0, {}, false},
    {ViewEntry::HideToolbar, Kind::Flag, "HideToolbar", "hide-toolbar", "FLAG",
     "whether the viewer's tool bars are hidden", "", pdflibrary::HideToolBars, {}, true},
    {ViewEntry::HideMenubar, Kind::Flag, "HideMenubar", "hide-menubar", "FLAG",
     "whether the viewer's menu bar is hidden", "", pdflibrary::HideMenuBar, {}, true},
    {ViewEntry::HideWindowUI, Kind::Flag, "HideWindowUI", "hide-window-ui", "FLAG",
     "whether scroll bars and other controls of the window are hidden", "", pdflibrary::HideWindowControls, {}, true},
    {ViewEntry::FitWindow, Kind::Flag, "FitWindow", "fit-window", "FLAG",
     "whether the window takes the size of the first page", "", pdflibrary::FitWindow, {}, true},
    {ViewEntry::CenterWindow, Kind::Flag, "CenterWindow", "center-window", "FLAG",
     "whether the window is placed in the middle of the screen", "", pdflibrary::CenterWindow, {}, true},
    {ViewEntry::DisplayDocTitle, Kind::Flag, "DisplayDocTitle", "display-doc-title", "FLAG",
     "whether the title bar shows the title", "", pdflibrary::TitleBar, {}, true},
    {ViewEntry::NonFullScreenPageMode, Kind::Name, "NonFullScreenPageMode", "non-full-screen-page-mode", "MODE",
     "the panel beside the page once full screen is left", "", pdflibrary::NonFullScreenMode, panels, true},
    {ViewEntry::Direction, Kind::Name, "Direction", "direction", "l2r|r2l|unset",
     "the direction in which the document is read", "", pdflibrary::Direction, directions, true},
    {ViewEntry::PrintScaling, Kind::Name, "PrintScaling", "print-scaling", "SCALING",
     "how the print dialog scales pages", "", pdflibrary::PrintScaling, scalings, true},
    {ViewEntry::Duplex, Kind::Name, "Duplex", "duplex", "DUPLEX",
     "how the print dialog uses the two sides of the paper", "", pdflibrary::Duplex, duplexes, true},
    {ViewEntry::PickTrayByPDFSize, Kind::Flag, "PickTrayByPDFSize", "pick-tray-by-pdf-size", "FLAG",
     "whether the page size selects the paper tray", "", pdflibrary::PickTrayByPDFSize, {}, true},
    {ViewEntry::NumCopies, Kind::Count, "NumCopies", "num-copies", "N|unset",
     "the number of copies that the print dialog proposes", "", pdflibrary::NumCopies, {}, true},
    {ViewEntry::Title, Kind::Text, "title", "title", "TEXT",
     "the document's title", "in the information dictionary, and in XMP metadata where there is any; an empty one takes it away", 0, {}, false},
    {ViewEntry::Lang, Kind::Language, "lang", "lang", "TAG|unset",
     "the document's language", "as in en-GB", 0, {}, true},
}};
// clang-format on

} // namespace

const std::array<Description, viewEntryCount>& all()
{
    return entries;
}

const Description& describe(ViewEntry entry)
{
    return entries.at(static_cast<std::size_t>(entry));
}

std::span<const Name> magnifications()
{
    return std::span(zooms).first<5>();
}

std::span<const Name> allMagnifications()
{
    return zooms;
}

std::vector<std::string> words(const Description& entry)
{
    std::vector<std::string> found;
    if (entry.kind == Kind::Flag)
        found = {"yes", "no"};
    if (entry.kind == Kind::Page)
        found = {"last"};
    const std::span<const Name> names = entry.kind == Kind::Magnification ? magnifications() : entry.names;
    for (const Name& name : names)
        found.emplace_back(name.word);
    for (const Name& name : names)
        if (name.alias != nullptr)
            found.emplace_back(name.alias);
    if (entry.unsettable)
        found.emplace_back("unset");
    return found;
}

std::string label(ViewEntry entry)
{
    std::string text = describe(entry).option;
    std::replace(text.begin(), text.end(), '-', ' ');
    return text;
}

} // namespace host::viewentries
