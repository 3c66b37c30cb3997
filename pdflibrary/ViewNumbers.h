#pragma once

/// The numbers that the document view operations exchange.
namespace pdflibrary {

/// Page mode of GetPageMode, SetPageMode and viewer preference 7 (which never takes FullScreen).
enum PageMode {
    PageOnly = 0,
    BookmarksPanel = 1,
    PagesPanel = 2,
    FullScreen = 3,
    LayersPanel = 4,
    AttachmentsPanel = 5
};

/// Page layout of GetPageLayout and SetPageLayout; 6 stands for a document without the entry.
enum PageLayout {
    SinglePage = 0,
    OneColumn = 1,
    TwoColumnLeft = 2,
    TwoColumnRight = 3,
    TwoPageLeft = 4,
    TwoPageRight = 5,
    NoPageLayout = 6,
};

/// Destination type of GetDestType and SetOpenActionDestinationFull. Only Zoomed has a zoom (percent, 0 for
/// none).
enum DestinationType { Zoomed = 1, FitPage = 2, FitWidth = 3, FitHeight = 4, FitVisible = 5 };

/// Option of GetViewerPreferences and SetViewerPreferences: 1 yes, 0 no; TitleBar 0 file name, 1 document
/// title; NonFullScreenMode a page mode.
enum ViewerPreference {
    HideToolBars = 1,
    HideMenuBar = 2,
    HideWindowControls = 3,
    FitWindow = 4,
    CenterWindow = 5,
    TitleBar = 6,
    NonFullScreenMode = 7,
};

/// Box of GetPageBox.
enum PageBox { MediaBox = 1, CropBox = 2, BleedBox = 3, TrimBox = 4, ArtBox = 5 };

/// Dimension of GetPageBox, in points of default user space.
enum BoxDimension { BoxLeft = 0, BoxTop = 1, BoxWidth = 2, BoxHeight = 3, BoxRight = 4, BoxBottom = 5 };

} // namespace pdflibrary
