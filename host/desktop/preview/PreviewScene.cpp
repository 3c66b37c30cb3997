#include "PreviewScene.h"

#include "pdflibrary/ViewNumbers.h"

#include <algorithm>

namespace host::desktop {

namespace {

using Panel = PreviewScene::Panel;
using Layout = PreviewScene::Layout;
using Fit = PreviewScene::Fit;

bool isSet(const ViewChange& view, ViewEntry entry)
{
    return view.number(entry, 0) == 1;
}

Panel panelOf(int mode)
{
    switch (mode) {
    case pdflibrary::BookmarksPanel:
        return Panel::Bookmarks;
    case pdflibrary::PagesPanel:
        return Panel::Pages;
    case pdflibrary::LayersPanel:
        return Panel::Layers;
    case pdflibrary::AttachmentsPanel:
        return Panel::Attachments;
    default:
        return Panel::None;
    }
}

Layout layoutOf(int layout)
{
    switch (layout) {
    case pdflibrary::OneColumn:
        return Layout::Column;
    case pdflibrary::TwoColumnLeft:
    case pdflibrary::TwoColumnRight:
        return Layout::TwoColumns;
    case pdflibrary::TwoPageLeft:
    case pdflibrary::TwoPageRight:
        return Layout::TwoPages;
    default:
        return Layout::Single;
    }
}

void showZoom(const ViewChange& view, PreviewScene& scene)
{
    const auto& value = view[ViewEntry::Zoom];
    const auto* zoom = value ? std::get_if<Magnification>(&*value) : nullptr;
    if (zoom == nullptr)
        return;
    scene.percent = zoom->percent;
    scene.fit = zoom->type == pdflibrary::FitPage     ? Fit::Page
                : zoom->type == pdflibrary::FitHeight ? Fit::Height
                : zoom->type == pdflibrary::Zoomed    ? Fit::Free
                                                      : Fit::Width;
}

QString titleBarOf(const ViewChange& view, const QString& fileName)
{
    const auto& title = view[ViewEntry::Title];
    const auto* text = title ? std::get_if<std::string>(&*title) : nullptr;
    const bool shows = isSet(view, ViewEntry::DisplayDocTitle) && text != nullptr && !text->empty();
    return shows ? QString::fromStdString(*text).simplified() : fileName;
}

PreviewScene sceneOf(const ViewChange& view, const DocumentRecord& record,
                     const QVector<PreviewScene::Bookmark>& bookmarks)
{
    const int mode = view.number(ViewEntry::PageMode, pdflibrary::PageOnly);
    const int layout = view.number(ViewEntry::PageLayout, pdflibrary::NoPageLayout);
    PreviewScene scene;
    scene.titleBar = titleBarOf(view, record.name);
    scene.isFullScreen = mode == pdflibrary::FullScreen;
    scene.panel = panelOf(mode);
    scene.bookmarks = bookmarks;
    scene.layout = layoutOf(layout);
    scene.isOddRight = layout == pdflibrary::TwoColumnRight || layout == pdflibrary::TwoPageRight;
    scene.isRightToLeft = isSet(view, ViewEntry::Direction);
    scene.pages = std::max(1, record.facts->pages);
    const bool isLast = view[ViewEntry::OpenPage] == ViewValue(LastPage());
    scene.page = isLast ? scene.pages : std::clamp(view.number(ViewEntry::OpenPage, 1), 1, scene.pages);
    showZoom(view, scene);
    scene.hasToolBar = !isSet(view, ViewEntry::HideToolbar);
    scene.hasMenuBar = !isSet(view, ViewEntry::HideMenubar);
    scene.hasControls = !isSet(view, ViewEntry::HideWindowUI);
    scene.fitsWindow = isSet(view, ViewEntry::FitWindow);
    return scene;
}

} // namespace

PreviewScene PreviewScene::before(const DocumentRecord& record, const QVector<Bookmark>& bookmarks)
{
    ViewChange view = record.facts->view.view;
    if (const Outcome* outcome = record.outcome())
        view.add(outcome->before.view);
    return sceneOf(view, record, bookmarks);
}

PreviewScene PreviewScene::after(const DocumentRecord& record, const QVector<Bookmark>& bookmarks)
{
    ViewChange view = record.facts->view.view;
    if (const Outcome* outcome = record.outcome())
        view.add(outcome->after.view);
    return sceneOf(view, record, bookmarks);
}

std::pair<int, int> PreviewScene::firstRow() const
{
    if (layout == Layout::Single || layout == Layout::Column)
        return {page, 0};
    const int left = isOddRight ? page - page % 2 : page - 1 + page % 2;
    const int right = left + 1 <= pages ? left + 1 : 0;
    return isRightToLeft ? std::pair(right, left) : std::pair(left, right);
}

} // namespace host::desktop
