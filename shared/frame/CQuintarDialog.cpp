#include "CQuintarDialog.h"

#include "CShortcutToolTip.h"
#include "CWheelFocusFilter.h"
#include "FrameStyles.h"

#include "CUtils.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QPushButton>
#include <QScreen>

namespace {

/// One of the eight outer cells of the frame's grid.
struct ShadowCell
{
    const char* name;
    int row;
    int column;
    QSize least;
    QSize most;
    const char* image;
    const char* repeat;
    const char* position; // null for an edge
};

/// What distinguishes a button of the header from the others.
struct HeaderButton
{
    const char* name;
    const char* accessibleName;
    const char* description;
    const char* toolTip;
    const char* shortcut;
    const char* image;
    const char* disabledImage;
    int iconSize;
    const char* slot; // of the dialog; the 1 in front marks a slot
};

const QString resources = QStringLiteral(":/Quintar/Resources/");
const QString mainWindowName = QStringLiteral("QuintarClass");
const QString previewName = QStringLiteral("QuintarPreviewClass");

const QSize corner(8, 8);
const QSize leastRow(0, 8);
const QSize mostRow(QWIDGETSIZE_MAX, 8);
const QSize leastColumn(8, 0);
const QSize mostColumn(8, QWIDGETSIZE_MAX);

// clang-format off
const ShadowCell topLeftCell    {"QDshadowTopLeft",  0, 0, corner,      corner,     "DialogShadow-TopLeft.png",  "no-repeat", "bottom right"};
const ShadowCell topCell        {"QDshadowTop",      0, 1, leastRow,    mostRow,    "DialogShadow-Top.png",      "repeat-x",  nullptr};
const ShadowCell topRightCell   {"QDshadowTopRight", 0, 2, corner,      corner,     "DialogShadow-TopRight.png", "no-repeat", "bottom left"};
const ShadowCell leftCell       {"QDshadowLeft",     1, 0, leastColumn, mostColumn, "DialogShadow-Left.png",     "repeat-y",  nullptr};
const ShadowCell rightCell      {"QDshadowRight",    1, 2, leastColumn, mostColumn, "DialogShadow-Right.png",    "repeat-y",  nullptr};
const ShadowCell bottomLeftCell {"QDshadowBtmLeft",  2, 0, corner,      corner,     "DialogShadow-BtmLeft.png",  "no-repeat", "top right"};
const ShadowCell bottomCell     {"QDshadowBtm",      2, 1, leastRow,    mostRow,    "DialogShadow-Btm.png",      "repeat-x",  nullptr};
const ShadowCell bottomRightCell{"QDshadowBtmRight", 2, 2, corner,      corner,     "DialogShadow-BtmRight.png", "no-repeat", "top left"};
// clang-format on

const HeaderButton closeForm{"quintarHeaderCloseBtn",
                             "Close",
                             "Closes the dialog without taking over its settings",
                             "",
                             "Ctrl+W",
                             "WinClose.png",
                             "WinClose_disabled.png",
                             14,
                             "1reject()"};
const HeaderButton addToActionForm{"QDtoolbarAddToActionListButton",
                                   "Add to/Create new Action",
                                   "Stores the settings in an action list, a new one or one that exists",
                                   "Add to/Create new Action",
                                   "Ctrl+L",
                                   "PaneActionList_extra.png",
                                   "PaneActionList_disabled.png",
                                   20,
                                   "1on_QDShowSaveDialog()"};
const HeaderButton addToCollectionsForm{"QDtoolbarAddToCollectionsButton",
                                        "Add to Favorites/Save settings",
                                        "Stores the settings as a favorite or in a file, and closes",
                                        "Add to Favorites/Save settings",
                                        "Ctrl+D",
                                        "Collection.png",
                                        "Collection_disabled.png",
                                        20,
                                        "1on_QDShowSaveCollectionDialog()"};

const int moveBarHeight = 30;
const int borderWidth = 9;
const int headerButtonSize = 24;
const int leastFontPixels = 9;
const int midLightness = 128;
const QColor lightButton(239, 239, 239);

QFrame* newShadow(QGridLayout* grid, const ShadowCell& cell)
{
    auto* shadow = new QFrame(grid->parentWidget());
    shadow->setObjectName(cell.name);
    shadow->setMinimumSize(cell.least);
    shadow->setMaximumSize(cell.most);
    const QString sheet(cell.position != nullptr ? framestyles::shadowCorner : framestyles::shadowEdge);
    const QString common = sheet.arg(cell.name, cell.image, cell.repeat);
    shadow->setStyleSheet(cell.position != nullptr ? common.arg(cell.position) : common);
    shadow->setFrameShape(QFrame::StyledPanel);
    shadow->setFrameShadow(QFrame::Raised);
    grid->addWidget(shadow, cell.row, cell.column, 1, 1);
    return shadow;
}

CQuintarHeaderButton* newHeaderButton(QDialog* dialog, QLayout* header, const HeaderButton& form)
{
    auto* button = new CQuintarHeaderButton(header->parentWidget());
    button->setObjectName(form.name);
    button->setMinimumSize(headerButtonSize, headerButtonSize);
    button->setMaximumSize(headerButtonSize, headerButtonSize);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(form.accessibleName);
    button->setAccessibleDescription(form.description);
    button->setToolTip(form.toolTip);
    button->setShortcut(QKeySequence(form.shortcut));
    new CShortcutToolTip(button);
    QIcon icon;
    icon.addFile(resources + form.image, QSize(), QIcon::Normal, QIcon::Off);
    icon.addFile(resources + form.disabledImage, QSize(), QIcon::Disabled, QIcon::On);
    button->setIcon(icon);
    button->setIconSize(QSize(form.iconSize, form.iconSize));
    button->setAutoRaise(true);
    header->addWidget(button);
    QObject::connect(button, SIGNAL(clicked()), dialog, form.slot);
    button->setStyleSheet(framestyles::headerButton);
    return button;
}

/// The top-left corner at which a rectangle lies in the middle of an area.
QPoint centred(const QRect& rectangle, const QRect& area)
{
    return QPoint((area.left() + area.right()) / 2 - (rectangle.right() - rectangle.left()) / 2,
                  (area.top() + area.bottom()) / 2 - (rectangle.bottom() - rectangle.top()) / 2);
}

/// The least size at which no text is cut off.
QSize leastSize(const QWidget& frame)
{
    QSize least = frame.minimumSizeHint();
    // Layouts take a least width that was set for a button for enough.
    for (const QPushButton* button : frame.findChildren<QPushButton*>())
        if (button->minimumWidth() > 0)
            least.rwidth() +=
                qMax(0, qMin(button->sizeHint().width(), button->maximumWidth()) - button->minimumWidth());
    return least;
}

bool fits(const QSize& size, const QSize& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

/// The content is white in every theme, and the style sheet keeps widgets within from inheriting colours: the
/// white texts of a dark theme would be lost.
void keepTextsDark(const QWidget& content)
{
    if (QGuiApplication::palette().color(QPalette::WindowText).lightness() < midLightness)
        return;
    const QPalette light(lightButton);
    for (QWidget* widget : content.findChildren<QWidget*>())
        widget->setPalette(light);
}

/// Dialogs of a fixed size count it in pixels: texts larger than they were drawn for would be cut off.
void shrinkFontToFit(QWidget& frame, const QSize& room)
{
    const QList<QWidget*> widgets = frame.findChildren<QWidget*>();
    int pixels = QFontInfo(frame.font()).pixelSize();
    while (!fits(leastSize(frame), room) && pixels > leastFontPixels) {
        --pixels;
        // One by one: under a style sheet a font does not reach widgets further within.
        for (QWidget* widget : widgets) {
            QFont font = widget->font();
            font.setPixelSize(pixels);
            widget->setFont(font);
            // Lists remember the least size that they had with the former one.
            QEvent forget(QEvent::StyleChange);
            QCoreApplication::sendEvent(widget, &forget);
        }
    }
}

} // namespace

CQuintarDialog::CQuintarDialog(QWidget* parent, bool flag)
    : QDialog(parent, Qt::FramelessWindowHint), framelessHandler(nullptr), dialogFlag(flag)
{
    const Host host = findHost(parent);
    const bool translucent = CUtils::CheckOpenGLSupport();
    if (translucent)
        setAttribute(Qt::WA_TranslucentBackground);
    extraHeight = translucent ? 51 : 35;
    extraWidth = translucent ? 16 : 0;

    setUpWindow();
    addTopShadows();
    addMainFrame(host);
    addHeader(host);
    addContent();
    addBottomShadows();
    activateHandler();
}

CQuintarDialog::~CQuintarDialog() = default;

int CQuintarDialog::exec()
{
    return QDialog::exec();
}

CQuintarDialog::Host CQuintarDialog::findHost(QWidget* ancestor)
{
    for (; ancestor != nullptr; ancestor = ancestor->parentWidget()) {
        if (ancestor->objectName() == mainWindowName)
            return Host::MainWindow;
        if (ancestor->objectName() == previewName) {
            previewHost = ancestor;
            return Host::Preview;
        }
    }
    return Host::None;
}

bool CQuintarDialog::underPreview() const
{
    return previewHost != nullptr && previewHost->objectName() == previewName;
}

void CQuintarDialog::setUpWindow()
{
    resize(730, 599);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(sizePolicy().hasHeightForWidth());
    setSizePolicy(policy);
    setMinimumSize(100, 100);
    setWindowIcon(QIcon(resources + "Icons/App_icon_256x256.png"));
    setProperty("iconSize", QSize(24, 24));

    gridLayout = new QGridLayout(this);
    gridLayout->setSpacing(0);
    gridLayout->setContentsMargins(0, 0, 0, 0);
    gridLayout->setObjectName("QDgridLayout");
}

void CQuintarDialog::addTopShadows()
{
    shadowTopLeft = newShadow(gridLayout, topLeftCell);
    shadowTopLeft->setSizeIncrement(0, 0);
    shadowTopLeft->setBaseSize(0, 0);
    shadowTop = newShadow(gridLayout, topCell);
    shadowTopRight = newShadow(gridLayout, topRightCell);
    shadowLeft = newShadow(gridLayout, leftCell);
}

void CQuintarDialog::addBottomShadows()
{
    shadowRight = newShadow(gridLayout, rightCell);
    shadowBtmLeft = newShadow(gridLayout, bottomLeftCell);
    shadowBtm = newShadow(gridLayout, bottomCell);
    shadowBtmRight = newShadow(gridLayout, bottomRightCell);
}

void CQuintarDialog::addMainFrame(Host host)
{
    mainFrame = new QFrame(this);
    mainFrame->setObjectName("QDmainFrame");
    mainFrame->setMinimumSize(40, 40);
    QString sheet(framestyles::mainFrame);
    if (host != Host::MainWindow)
        for (const framestyles::Replacement& colour : framestyles::greyBrown)
            sheet.replace(QLatin1String(colour.before), QLatin1String(colour.after));
    mainFrame->setStyleSheet(sheet);
    mainFrame->setFrameShape(QFrame::StyledPanel);
    mainFrame->setFrameShadow(QFrame::Raised);

    mainLayout = new QVBoxLayout(mainFrame);
    mainLayout->setSpacing(2);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setObjectName("QDMainVerticalLayout");
}

void CQuintarDialog::addHeader(Host host)
{
    headerWidget = new QWidget(mainFrame);
    headerWidget->setObjectName("QDheaderWidget");
    headerWidget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    headerWidget->setMinimumSize(0, moveBarHeight);
    headerWidget->setMaximumSize(QWIDGETSIZE_MAX, moveBarHeight);
    headerWidget->setStyleSheet(framestyles::header);
    headerLayout = new QHBoxLayout(headerWidget);
    headerLayout->setSpacing(6);
    headerLayout->setObjectName("QDHeaderHorizontalLayout");
    headerLayout->setContentsMargins(10, 3, 5, 2);

    prefixLabel = new QLabel(headerWidget);
    prefixLabel->setObjectName("QDPrefixLabel");
    prefixLabel->setStyleSheet(framestyles::prefix);
    headerLayout->addWidget(prefixLabel);
    if (host == Host::None)
        prefixLabel->setText(QString("Kelvane Advanced Tools") + " -");
    else
        prefixLabel->hide();
    titleLabel = new QLabel(headerWidget);
    titleLabel->setObjectName("QDtitleLabel");
    titleLabel->setStyleSheet(framestyles::title);
    headerLayout->addWidget(titleLabel, 1);
    mainLayout->addWidget(headerWidget);
}

void CQuintarDialog::addContent()
{
    contentWidget = new QWidget(mainFrame);
    contentWidget->setObjectName("QDcontentWidget");
    contentLayout = new QVBoxLayout(contentWidget);
    contentLayout->setContentsMargins(1, 1, 1, 1);
    mainLayout->addWidget(contentWidget, 1);
    gridLayout->addWidget(mainFrame, 1, 1);
}

void CQuintarDialog::activateHandler()
{
    framelessHandler.activateOn(this);
    framelessHandler.setWidgetResizable(true);
    for (QFrame* shadow : {shadowTopLeft, shadowTop, shadowTopRight, shadowLeft, shadowRight, shadowBtmLeft,
                           shadowBtm, shadowBtmRight})
        shadow->setVisible(false);
    framelessHandler.setMoveBarHeight(moveBarHeight);
    framelessHandler.setBorderWidth(borderWidth);
}

QRect CQuintarDialog::centringArea() const
{
    if (underPreview())
        return previewHost->geometry();
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableGeometry() : QRect();
}

void CQuintarDialog::QDaddMainWidget(QWidget* mainWidget, bool fixedSize)
{
    const QSize size = mainWidget->size();
    fixedHeight = size.height() + extraHeight;
    setGeometry(QRect(pos(), QSize(size.width() + extraWidth, fixedHeight)));
    move(centred(geometry(), centringArea()));

    setMinimumHeight(fixedHeight);
    if (fixedSize) {
        // The chrome's width counts in the centring only.
        setFixedWidth(size.width());
        setFixedHeight(fixedHeight);
    } else {
        setMinimumWidth(size.width() + extraWidth);
    }
    updateGeometry();
    keepTextsDark(*mainWidget);
    CWheelFocusFilter::guardWithin(*mainWidget);
    contentLayout->addWidget(mainWidget);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    framelessHandler.setWidgetResizable(!fixedSize);
    if (fixedSize)
        shrinkFontToFit(*mainFrame, maximumSize());
}

void CQuintarDialog::QDaddCloseButton()
{
    closeButton = newHeaderButton(this, headerLayout, closeForm);
}

void CQuintarDialog::QDaddTopButtons()
{
    addToActionListButton = newHeaderButton(this, headerLayout, addToActionForm);
    addToCollectionsButton = newHeaderButton(this, headerLayout, addToCollectionsForm);
}

void CQuintarDialog::QDhideAddToActionListButton()
{
    addToActionListButton->setVisible(false);
}
