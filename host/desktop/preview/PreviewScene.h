#pragma once

#include "host/desktop/documents/DocumentRecord.h"

namespace host::desktop {

/// The first moment of a document in a viewer that does all that is asked, as a value: what stands where.
struct PreviewScene
{
    enum class Panel { None, Bookmarks, Pages, Layers, Attachments };
    enum class Layout { Single, Column, TwoColumns, TwoPages };
    enum class Fit { Free, Page, Width, Height };

    struct Bookmark
    {
        int level = 0;
        QString title;
        bool operator==(const Bookmark&) const = default;
    };

    QString titleBar;
    bool isFullScreen = false;
    Panel panel = Panel::None;
    /// Of the panel; empty where they are not known.
    QVector<Bookmark> bookmarks;
    Layout layout = Layout::Single;
    /// In a layout of two, whether page 1 stands by itself.
    bool isOddRight = false;
    bool isRightToLeft = false;
    int pages = 1;
    /// The first that is shown, from 1.
    int page = 1;
    Fit fit = Fit::Free;
    /// 0 unless a percentage is asked for.
    double percent = 0;
    bool hasToolBar = true;
    bool hasMenuBar = true;
    bool hasControls = true;
    bool fitsWindow = false;

    /// How it opens now.
    static PreviewScene before(const DocumentRecord& record, const QVector<Bookmark>& bookmarks);
    /// How it will open, as the check says; before the check as it opens now.
    static PreviewScene after(const DocumentRecord& record, const QVector<Bookmark>& bookmarks);

    /// The pages that stand side by side at the top, from 1; 0 for none.
    std::pair<int, int> firstRow() const;
    bool operator==(const PreviewScene&) const = default;
};

} // namespace host::desktop
