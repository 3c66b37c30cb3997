#include "PreviewPane.h"

#include "host/desktop/look/Drawings.h"
#include "host/desktop/rows/RowTexts.h"

#include <QPainter>

namespace host::desktop {

namespace {

const double margin = 12;
const double titleHeight = 20;
const double lineHeight = 16;
/// On low screens the settings need the room more; below the height for words these are only the tool tip.
const int lowest = 110;
const int lowestWithWords = 170;
/// A single window is drawn so much wider than tall, and one of two no taller than this for its width.
const double widest = 1.25;
const double tallest = 4.0 / 3;

QRectF centred(const QRectF& area, const QSizeF& size)
{
    return {area.center() - QPointF(size.width(), size.height()) / 2, size};
}

QString inWords(const PreviewScene& scene)
{
    const QString panel = scene.isFullScreen                              ? PreviewPane::tr("full screen")
                          : scene.panel == PreviewScene::Panel::Bookmarks ? PreviewPane::tr("bookmarks panel")
                          : scene.panel == PreviewScene::Panel::Pages     ? PreviewPane::tr("pages panel")
                          : scene.panel == PreviewScene::Panel::Layers    ? PreviewPane::tr("layers panel")
                          : scene.panel == PreviewScene::Panel::Attachments
                              ? PreviewPane::tr("attachments panel")
                              : PreviewPane::tr("no panel");
    return PreviewPane::tr("title bar “%1”, %2, page %3 of %4")
        .arg(scene.titleBar, panel)
        .arg(scene.page)
        .arg(scene.pages);
}

/// Of what is asked for, what only some viewers do.
QString followersOf(const PreviewScene& scene)
{
    if (scene.isFullScreen)
        return PreviewPane::tr("Many viewers ask before full screen; browsers ignore it.");
    if (!scene.hasToolBar || !scene.hasMenuBar || !scene.hasControls || scene.fitsWindow)
        return PreviewPane::tr("Full-featured viewers do this; browsers ignore bars and windows.");
    if (scene.panel == PreviewScene::Panel::Layers || scene.panel == PreviewScene::Panel::Attachments)
        return PreviewPane::tr("Viewers that have this panel show it.");
    if (scene.layout == PreviewScene::Layout::TwoColumns || scene.layout == PreviewScene::Layout::TwoPages)
        return PreviewPane::tr("Full-featured viewers and Firefox follow the layout; others keep their own.");
    return PreviewPane::tr("Most desktop viewers do this; browsers follow page and zoom.");
}

} // namespace

PreviewPane::PreviewPane(Workbench& workbench, const QString& drawer, QWidget* parent)
    : QWidget(parent), m_workbench(workbench), m_outline(workbench.program()), m_pictures(drawer)
{
    setObjectName("preview");
    setAccessibleName(tr("Preview"));
    setMinimumHeight(lowest);
    setWhatsThis(tr(
        "A drawing of the first moment of the current document, as it opens now and as it will. Each viewer "
        "decides for itself what of this it does."));
    connect(&workbench.order(), &DocumentOrder::selectionMoved, this, &PreviewPane::show);
    connect(&workbench.table(), &DocumentTable::changed, this, &PreviewPane::show);
    connect(&workbench.order(), &DocumentOrder::shownChanged, this, &PreviewPane::show);
    connect(&m_outline, &Outline::came, this, &PreviewPane::show);
    connect(&m_pictures, &PagePictures::came, this, QOverload<>::of(&QWidget::update));
    show();
}

void PreviewPane::show()
{
    const DocumentRecord* record = m_workbench.table().find(m_workbench.order().current());
    const bool wasKnown = m_isKnown;
    m_isKnown = record != nullptr && record->facts;
    if (!m_isKnown) {
        const QString reason = record != nullptr ? rowtexts::reasonOf(*record) : QString();
        if (wasKnown || reason != m_reason)
            update();
        m_reason = reason;
        setToolTip({});
        setAccessibleDescription(reason);
        return;
    }
    m_pictures.setDocument(record->path, m_workbench.passwordOf(*record), record->facts);
    QVector<PreviewScene::Bookmark> bookmarks;
    if (record->facts->bookmarks != 0 && isVisible())
        bookmarks = m_outline.of(record->path, m_workbench.passwordOf(*record), record->facts);
    const PreviewScene before = PreviewScene::before(*record, bookmarks);
    const PreviewScene after = PreviewScene::after(*record, bookmarks);
    if (wasKnown && before == m_before && after == m_after)
        return;
    m_before = before;
    m_after = after;
    m_followers = followersOf(after);
    setToolTip(m_followers);
    setAccessibleDescription(
        before == after ? tr("Opens with %1.").arg(inWords(before))
                        : tr("Before: %1. After: %2. %3").arg(inWords(before), inWords(after), m_followers));
    update();
}

void PreviewPane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF area = QRectF(rect()).adjusted(margin, margin / 2, -margin, -margin / 2);
    if (!m_isKnown) {
        painter.setPen(drawings::quietText(palette()));
        painter.drawText(area, int(Qt::AlignCenter) | int(Qt::TextWordWrap),
                         m_reason.isEmpty() ? tr("Select a document to see how it opens.") : m_reason);
        return;
    }
    const double words = height() < lowestWithWords ? 0 : heightOfWords(area.width());
    const QRectF room = area.adjusted(0, 0, 0, lineHeight - titleHeight - words);
    const QRectF scenes = m_before == m_after ? paintOne(painter, room) : paintBoth(painter, room);
    if (words == 0)
        return;
    painter.setPen(drawings::quietText(palette()));
    const QRectF below(area.left(), scenes.bottom() + titleHeight - lineHeight, area.width(), words);
    painter.drawText(below, int(Qt::AlignCenter) | int(Qt::TextWordWrap), m_followers);
}

/// Which viewers follow takes two lines in some languages and fonts.
double PreviewPane::heightOfWords(double width) const
{
    const QRectF words = QFontMetricsF(font()).boundingRect(
        QRectF(0, 0, width, height()), int(Qt::AlignHCenter) | int(Qt::TextWordWrap), m_followers);
    return std::max<double>(words.height(), lineHeight);
}

QRectF PreviewPane::paintOne(QPainter& painter, const QRectF& area)
{
    const double room = area.height() - titleHeight;
    const double width = std::min(area.width(), std::max(area.width() / 2, room * widest));
    const double height = std::min(room, width / widest) + titleHeight;
    const QRectF one = centred(area, {width, height});
    paintScene(painter, one, tr("Opens like this"), m_before);
    return one;
}

QRectF PreviewPane::paintBoth(QPainter& painter, const QRectF& area)
{
    const double half = (area.width() - margin) / 2;
    const double height = std::min(area.height(), half * tallest + titleHeight);
    const QRectF both = centred(area, {area.width(), height});
    QRectF before(both.topLeft(), QSizeF(half, height));
    QRectF after = before.translated(half + margin, 0);
    if (layoutDirection() == Qt::RightToLeft)
        std::swap(before, after);
    paintScene(painter, before, tr("Before"), m_before);
    paintScene(painter, after, tr("After"), m_after);
    return both;
}

void PreviewPane::paintScene(QPainter& painter, const QRectF& area, const QString& title,
                             const PreviewScene& scene)
{
    const QRectF head(area.topLeft(), QSizeF(area.width(), titleHeight));
    painter.setPen(drawings::quietText(palette()));
    painter.drawText(head, int(Qt::AlignLeft | Qt::AlignVCenter), title);
    const SceneDrawing::Picture picture = [this](int page, double width) {
        return m_pictures.of(page, width * devicePixelRatioF());
    };
    SceneDrawing(scene, palette(), picture).paint(painter, area.adjusted(0.5, titleHeight, -0.5, -0.5));
}

} // namespace host::desktop
