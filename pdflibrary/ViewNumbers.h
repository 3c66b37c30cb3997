#pragma once

#include <array>

/// The numbers that the document operations exchange, and the names that PDF has for them (ISO 32000-1,
/// 7.7.2, 12.2, 12.3.2 and 14.3.3). They are part of the library's interface: never reuse or renumber one.
///
/// A table of names has each one at the library's number for it; an empty name stands at a number that PDF
/// has no name for. An operation that gets any other number returns 0 or an empty string, and LastErrorCode
/// then BadArgument. The header stands alone, for the library file, actions and hosts.
namespace pdflibrary {

/// Page mode of GetPageMode, SetPageMode and viewer preference 7 (which takes neither FullScreen nor
/// NoPageMode). A document without the entry reads as PageOnly; NoPageMode removes the entry.
enum PageMode {
    PageOnly = 0,
    BookmarksPanel = 1,
    PagesPanel = 2, ///< Thumbnails.
    FullScreen =
        3, ///< Without menus; the panel beside the page is that of viewer preference 7 when it is left.
    LayersPanel = 4, ///< Optional content.
    AttachmentsPanel = 5,
    NoPageMode = 6, ///< Set, never read.
};

/// Values of /PageMode.
inline constexpr std::array pageModeNames{"/UseNone",    "/UseOutlines", "/UseThumbs",
                                          "/FullScreen", "/UseOC",       "/UseAttachments"};

/// Page layout of GetPageLayout and SetPageLayout; NoPageLayout stands for a document without the entry, and
/// removes it.
enum PageLayout {
    SinglePage = 0,     ///< One page at a time.
    OneColumn = 1,      ///< Pages below one another.
    TwoColumnLeft = 2,  ///< Two columns of pages, odd-numbered ones on the left.
    TwoColumnRight = 3, ///< The same with these on the right.
    TwoPageLeft = 4,    ///< Two pages at a time, the odd-numbered one on the left.
    TwoPageRight = 5,   ///< The same with that on the right.
    NoPageLayout = 6,
};

/// Values of /PageLayout.
inline constexpr std::array pageLayoutNames{"/SinglePage",     "/OneColumn",   "/TwoColumnLeft",
                                            "/TwoColumnRight", "/TwoPageLeft", "/TwoPageRight"};

/// Destination type of SetOpenActionDestinationFull. Only Zoomed has a zoom (percent, 0 for none).
/// GetDestType tells the last three as FitVisible, FitVisible and Zoomed; GetDestValue(DestinationForm) tells
/// them as they are.
enum DestinationType {
    Zoomed = 1,       ///< A left and a top edge, and a zoom; the only one that SetDestValue changes.
    FitPage = 2,      ///< The whole page in the window.
    FitWidth = 3,     ///< Its width, from a top edge down.
    FitHeight = 4,    ///< Its height, from a left edge on.
    FitVisible = 5,   ///< The width of what is drawn on the page, from a top edge down.
    FitBox = 6,       ///< All that is drawn on it.
    FitBoxHeight = 7, ///< The height of that, from a left edge on.
    FitRectangle = 8, ///< A rectangle of the page.
};

/// Types of explicit destinations, as they are written.
inline constexpr std::array destinationNames{"",       "/XYZ",  "/Fit",   "/FitH", "/FitV",
                                             "/FitBH", "/FitB", "/FitBV", "/FitR"};

/// Value of GetDestValue: coordinates in points of default user space, the zoom in percent, and the
/// DestinationType that is written in the document, 0 for none that is known. SetDestValue takes
/// DestinationZoom alone.
enum DestinationValue {
    DestinationLeft = 1, ///< This and the next three are 0 for what the destination leaves open.
    DestinationTop = 2,
    DestinationRight = 3,
    DestinationBottom = 4,
    DestinationZoom = 5,
    DestinationForm = 6,
};

/// The largest number that a destination or a page box has, either way: every reader takes it, whole or not
/// (ISO 32000-1, annex C). One that documents have beyond it reads as this one; none is written.
inline constexpr double largestNumber = 2147483647;

/// Action of GetActionType: what the document opens with. There is no other.
inline constexpr int OpenAction = 0;

/// Option of GetViewerPreferences and SetViewerPreferences; ViewerPreferences.h tells what each takes.
enum ViewerPreference {
    HideToolBars = 1,
    HideMenuBar = 2,
    HideWindowControls = 3,
    FitWindow = 4,
    CenterWindow = 5,
    TitleBar = 6,
    NonFullScreenMode = 7,
    Direction = 8,
    PrintScaling = 9,
    Duplex = 10,
    PickTrayByPDFSize = 11,
    NumCopies = 12,
};

/// Added to an option of GetViewerPreferences: whatever the option, an entry that the document does not have
/// reads as NoPreference, and one that holds nothing of what it may hold as InvalidPreference.
inline constexpr int AsWritten = 100;

/// Further entries of GetViewerPreferences, all with AsWritten only. The first two read as a PageMode and a
/// PageLayout, the texts as 0 where there is one.
enum WrittenEntry { PageModeEntry = 13, PageLayoutEntry = 14, LanguageEntry = 15, TitleEntry = 16 };

/// What GetViewerPreferences tells, with AsWritten, of an entry that is there and means nothing.
inline constexpr int InvalidPreference = -2;

/// What SetViewerPreferences takes to remove an entry.
inline constexpr int NoPreference = -1;

/// Box of GetPageBox. One that a page does not have reads as the one that PDF lets it default to.
enum PageBox { MediaBox = 1, CropBox = 2, BleedBox = 3, TrimBox = 4, ArtBox = 5 };

/// Keys of a page.
inline constexpr std::array pageBoxNames{"", "/MediaBox", "/CropBox", "/BleedBox", "/TrimBox", "/ArtBox"};

/// Dimension of GetPageBox, in points of default user space.
enum BoxDimension { BoxLeft = 0, BoxTop = 1, BoxWidth = 2, BoxHeight = 3, BoxRight = 4, BoxBottom = 5 };

/// Key of GetInformation and SetInformation. The version is the header's or the catalog's, and is only read;
/// dates are texts as they stand in the document.
enum InformationKey {
    InformationVersion = 0,
    InformationTitle = 1,
    InformationAuthor = 2,
    InformationSubject = 3,
    InformationKeywords = 4,
    InformationCreator = 5,
    InformationProducer = 6,
    InformationCreationDate = 7,
    InformationModificationDate = 8,
};

/// Keys of the document information dictionary.
inline constexpr std::array informationNames{
    "", "/Title", "/Author", "/Subject", "/Keywords", "/Creator", "/Producer", "/CreationDate", "/ModDate"};

/// What GetInstalledFontsByCharset can be asked for: of fonts for every character set, the names of families.
inline constexpr int AllCharacterSets = 2;
inline constexpr int FontFamilyNames = 1;

/// Flags of GetOutlineStyle; with OpenOutline, what is below a bookmark is shown at first.
enum OutlineStyle { ItalicOutline = 1, BoldOutline = 2, OpenOutline = 4 };

} // namespace pdflibrary
