#include "shared/CUtils.h"
#include "shared/frame/CQuintarDialog.h"

#include "support/Methods.h"
#include "support/OpenGLFlags.h"
#include "support/Rows.h"
#include "support/people/Hand.h"
#include "support/people/Mute.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolTip>
#include <QWheelEvent>
#include <QtTest>

#include <climits>
#include <memory>

namespace {

/// A dialog as plug-ins derive them, with the frame's members open to the tests.
class Dialog : public CQuintarDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent = nullptr) : CQuintarDialog(parent, false), content(new QWidget(this))
    {
        content->setObjectName("main_widget");
        content->resize(400, 300);
        connect(&framelessHandler, &CFramelessHandler::toggleMaximize, this, [this] { ++toggles; });
    }

    void addEverything(bool fixedSize = true)
    {
        QDaddMainWidget(content, fixedSize);
        QDaddTopButtons();
        QDaddCloseButton();
    }

    template <class Widget = QWidget>
    Widget* child(const char* name) const
    {
        return findChild<Widget*>(name);
    }

    QWidget* content;
    QStringList opened;
    int toggles = 0;
    using CQuintarDialog::addToActionListButton;
    using CQuintarDialog::contentLayout;
    using CQuintarDialog::framelessHandler;
    using CQuintarDialog::mainFrame;
    using CQuintarDialog::prefixLabel;
    using CQuintarDialog::previewHost;

public slots:
    void on_QDShowSaveDialog() { opened << "action"; }
    void on_QDShowSaveCollectionDialog() { opened << "favourite"; }
};

/// Widgets inside one another, the outermost first, so that a dialog can be opened from the innermost.
class Ancestry
{
public:
    explicit Ancestry(const QStringList& names)
    {
        for (const QString& name : names) {
            auto* widget = new QWidget(m_innermost);
            widget->setObjectName(name);
            if (!m_outermost)
                m_outermost.reset(widget);
            m_innermost = widget;
        }
    }
    QWidget* innermost() const { return m_innermost; }

private:
    std::unique_ptr<QWidget> m_outermost;
    QWidget* m_innermost = nullptr;
};

QStringList namesOf(const QObjectList& objects)
{
    QStringList names;
    for (const QObject* object : objects)
        names << object->objectName();
    return names;
}

QPoint middleOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

} // namespace

class TestQuintarDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { muteFrameWarnings(); }
    void init() { openGLFlags = 0; }

    void buildsItsChromeInOrder()
    {
        Dialog dialog;
        dialog.addEverything();
        QCOMPARE(namesOf(dialog.children()),
                 QStringList({"QDgridLayout", "QDshadowTopLeft", "QDshadowTop", "QDshadowTopRight",
                              "QDshadowLeft", "QDmainFrame", "QDshadowRight", "QDshadowBtmLeft",
                              "QDshadowBtm", "QDshadowBtmRight"}));
        QCOMPARE(namesOf(dialog.mainFrame->children()),
                 QStringList({"QDMainVerticalLayout", "QDheaderWidget", "QDcontentWidget"}));
        QCOMPARE(namesOf(dialog.child("QDheaderWidget")->children()),
                 QStringList({"QDHeaderHorizontalLayout", "QDPrefixLabel", "QDtitleLabel",
                              "QDtoolbarAddToActionListButton", "QDtoolbarAddToCollectionsButton",
                              "quintarHeaderCloseBtn"}));
        QCOMPARE(dialog.content->parentWidget()->objectName(), QString("QDcontentWidget"));
        QCOMPARE(dialog.contentLayout->contentsMargins(), QMargins());
        QCOMPARE(dialog.property("iconSize"), QVariant(QSize(24, 24)));
        QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    }

    void drawsShadowsInTheOuterCells_data()
    {
        const Rows<int, int, QSize, QSize, QString> add;
        const int most = QWIDGETSIZE_MAX;
        add("QDshadowTopLeft", 0, 0, {8, 8}, {8, 8},
            "QFrame#QDshadowTopLeft {\nbackground-image: url(:/Quintar/Resources/DialogShadow-TopLeft.png);\n"
            "background-repeat: no-repeat;\nbackground-position: bottom right;\nborder: 0px transparent;\n}");
        add("QDshadowRight", 1, 2, {8, 0}, {8, most},
            "QFrame#QDshadowRight {\nbackground-image: url(:/Quintar/Resources/DialogShadow-Right.png);\n"
            "background-repeat: repeat-y;\nborder: 0px transparent;\n\n}");
    }

    void drawsShadowsInTheOuterCells()
    {
        const auto [row, column, least, most, sheet] = Rows<int, int, QSize, QSize, QString>::current();
        Dialog dialog;
        const auto* shadow = dialog.child<QFrame>(QTest::currentDataTag());
        const auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
        QCOMPARE(grid->itemAtPosition(row, column)->widget(), shadow);
        QCOMPARE(shadow->minimumSize(), least);
        QCOMPARE(shadow->maximumSize(), most);
        QCOMPARE(shadow->styleSheet(), sheet);
        QVERIFY(shadow->isHidden());
        QCOMPARE(grid->itemAtPosition(1, 1)->widget(), dialog.mainFrame);
    }

    void followsTheHost_data()
    {
        // ancestry: outermost first
        // preview: position in the ancestry
        const Rows<QStringList, bool, bool, int> row;
        row("none", {}, true, false, -1);
        row("main window", {"QuintarClass"}, false, true, -1);
        row("preview", {"QuintarPreviewClass", "a"}, false, false, 0);
        row("preview nearer", {"QuintarClass", "QuintarPreviewClass", "a"}, false, false, 1);
        row("main window nearer", {"QuintarPreviewClass", "QuintarClass"}, false, true, -1);
    }

    void followsTheHost()
    {
        const auto [ancestry, prefixed, blue, preview] = Rows<QStringList, bool, bool, int>::current();
        const Ancestry hosts(ancestry);
        const Dialog dialog(hosts.innermost());
        QCOMPARE(dialog.prefixLabel->isHidden(), !prefixed);
        QCOMPARE(dialog.prefixLabel->text(), prefixed ? QString("Kelvane Advanced Tools -") : QString());
        const QWidget* host = dialog.previewHost;
        QCOMPARE(host == nullptr, preview == -1);
        if (host != nullptr)
            QCOMPARE(host->objectName(), QString("QuintarPreviewClass"));

        const QString sheet = dialog.mainFrame->styleSheet();
        QVERIFY(
            sheet.startsWith("QWidget#main_widget {background-color: rgb(255,255,255);color: rgb(0, 0, 0);}"
                             "QFrame#QDmainFrame {background: rgb(147, 147 ,147);"));
        QCOMPARE(sheet.contains("border: 1px solid rgb(50,50,170);}"), blue);
        QCOMPARE(sheet.contains("stop:0 rgba(70,90,160), stop:1 rgba(40,60,90));"), blue);
        QCOMPARE(sheet.contains("border: 1px solid rgb(140,130,130);}"), !blue);
        QCOMPARE(sheet.contains("stop:0 rgba(140,130,130), stop:1 rgba(40,36,36));"), !blue);
    }

    void takesTheSizeOfItsContent()
    {
        for (const bool translucent : {false, true}) {
            for (const bool fixedSize : {false, true}) {
                openGLFlags = translucent ? 32 : 31;
                Dialog dialog;
                dialog.addEverything(fixedSize);
                QCOMPARE(dialog.testAttribute(Qt::WA_TranslucentBackground), translucent);
                const QSize size(translucent && !fixedSize ? 416 : 400, translucent ? 351 : 335);
                QCOMPARE(dialog.minimumSize(), size);
                QCOMPARE(dialog.maximumSize(), fixedSize ? size : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
                QCOMPARE(dialog.size(), size);
                QCOMPARE(dialog.framelessHandler.isWidgetResizable(), !fixedSize);
                dialog.show();
                QVERIFY(dialog.content->height() >= 300);
            }
        }
    }

    void asksForTheOpenGLThatItNeeds()
    {
        for (const int flags : {INT_MIN, -1, 0, 31, 65, 127, 128, 1024, 2047, 32, 63, 64, 2048, INT_MAX}) {
            openGLFlags = flags;
            const bool suffices = (flags >= 32 && flags <= 64) || flags >= 2048;
            QVERIFY2(CUtils::CheckOpenGLSupport() == suffices, qPrintable(QString::number(flags)));
        }
    }

    void centresItself()
    {
        // 416 by 351, the extra width counted, whatever the width is afterwards.
        const std::pair<QRect, QPoint> cornersOver[] = {
            {{100, 50, 1000, 701}, {599 - 207, 400 - 175}},
            {{-1000, -901, 800, 600}, {-600 - 207, -601 - 175}}, // left of the screen
        };
        openGLFlags = 2048;
        for (const auto& [preview, corner] : cornersOver) {
            QWidget host;
            host.setObjectName("QuintarPreviewClass");
            host.setGeometry(preview);
            Dialog dialog(&host);
            dialog.addEverything();
            QCOMPARE(dialog.pos(), corner);

            // The host has meanwhile become something else.
            Dialog other(&host);
            host.setObjectName("other");
            other.addEverything();
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            QCOMPARE(other.pos(), QPoint((screen.left() + screen.right()) / 2 - 207,
                                         (screen.top() + screen.bottom()) / 2 - 175));
        }
    }

    void hasButtonsInItsHeader()
    {
        Dialog dialog;
        dialog.addEverything();
        dialog.show();
        const auto* action = dialog.child<QToolButton>("QDtoolbarAddToActionListButton");
        QCOMPARE(action->iconSize(), QSize(20, 20));
        QCOMPARE(action->size(), QSize(24, 24));
        QCOMPARE(action->focusPolicy(), Qt::NoFocus);
        QVERIFY(action->autoRaise());
        const auto* favourite = dialog.child<QToolButton>("QDtoolbarAddToCollectionsButton");
        const auto* close = dialog.child<QToolButton>("quintarHeaderCloseBtn");
        QCOMPARE(close->iconSize(), QSize(14, 14));

        Hand hand(dialog);
        hand.click(middleOf(favourite));
        hand.click(middleOf(action));
        QCOMPARE(dialog.opened, QStringList({"favourite", "action"}));
        QVERIFY(dialog.isVisible());
        hand.click(middleOf(close));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));

        dialog.QDhideAddToActionListButton();
        QVERIFY(action->isHidden());
        QVERIFY(!favourite->isHidden());
    }

    void tellsItsHeaderButtonsInEveryWay()
    {
        Dialog dialog;
        dialog.addEverything();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        for (const auto& [widget, name, keys] :
             {std::tuple{"QDtoolbarAddToActionListButton", "Add to/Create new Action", "Ctrl+L"},
              std::tuple{"QDtoolbarAddToCollectionsButton", "Add to Favorites/Save settings", "Ctrl+D"},
              std::tuple{"quintarHeaderCloseBtn", "Close", "Ctrl+W"}}) {
            auto* button = dialog.child<QToolButton>(widget);
            QCOMPARE(button->accessibleName(), QString(name));
            QVERIFY(!button->accessibleDescription().isEmpty());
            QCOMPARE(button->toolTip(), QString(name) == "Close" ? QString() : QString(name));
            QHelpEvent hover(QEvent::ToolTip, button->rect().center(), middleOf(button));
            QCoreApplication::sendEvent(button, &hover);
            QCOMPARE(QToolTip::text(), QString("%1 (%2)").arg(name, keys));

            const QSignalSpy clicked(button, SIGNAL(clicked()));
            button->hide();
            QTest::keySequence(&dialog, QKeySequence(keys));
            QVERIFY(clicked.isEmpty());
            button->show();
            QTest::keySequence(&dialog, QKeySequence(keys));
            QTRY_COMPARE(clicked.size(), 1);
        }
    }

    void turnsListsByTheWheelOnlyWithTheFocus()
    {
        Dialog dialog;
        dialog.content->setFocusPolicy(Qt::StrongFocus);
        auto* list = new QComboBox(dialog.content);
        list->addItems({"a", "b", "c"});
        list->setCurrentIndex(1);
        auto* box = new QSpinBox(dialog.content);
        box->setValue(1);
        dialog.addEverything();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        const auto turnBoth = [&] {
            for (QWidget* widget : {static_cast<QWidget*>(list), static_cast<QWidget*>(box)}) {
                const QPointF place = widget->rect().center();
                QWheelEvent turn(place, widget->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, 120),
                                 Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(widget, &turn);
            }
            return QPoint(list->currentIndex(), box->value());
        };
        dialog.content->setFocus();
        QCOMPARE(turnBoth(), QPoint(1, 1));
        list->setFocus();
        QCOMPARE(turnBoth(), QPoint(0, 1));
        box->setFocus();
        QCOMPARE(turnBoth(), QPoint(0, 2));
        // A wheel over them does not give them the focus either.
        QVERIFY(list->focusPolicy() == Qt::StrongFocus && box->focusPolicy() == Qt::StrongFocus);
    }

    void doubleClicksReachTheHeaderButNotThroughAButton()
    {
        Dialog dialog;
        dialog.addEverything();
        dialog.show();
        Hand hand(dialog);
        hand.doubleClick(middleOf(dialog.addToActionListButton));
        QCOMPARE(dialog.opened, QStringList{"action"});
        QCOMPARE(dialog.toggles, 0);
        hand.doubleClick(middleOf(dialog.child("QDtitleLabel")));
        QCOMPARE(dialog.toggles, 1);
    }

    void isMovedByItsHeader()
    {
        for (const bool fixedSize : {true, false}) {
            Dialog dialog;
            dialog.addEverything(fixedSize);
            dialog.move(100, 100);
            dialog.show();
            Hand hand(dialog);
            const QPoint grip = middleOf(dialog.child("QDtitleLabel"));
            hand.drag(grip, grip + QPoint(33, 44));
            QCOMPARE(dialog.geometry(), QRect(133, 144, 400, 335));
            const QPoint edge = dialog.geometry().bottomRight() - QPoint(2, 2);
            hand.drag(edge, edge + QPoint(20, 30));
            QCOMPARE(dialog.size(), fixedSize ? QSize(400, 335) : QSize(418, 363));
        }
    }

    void addsOnlyItsOwnExecToTheMethods()
    {
        QCOMPARE(methodsOf<CQuintarDialog>(), QStringList{"slot exec()"});
        QCOMPARE(CQuintarHeaderButton::staticMetaObject.className(), "QToolButton");
    }
};

QTEST_MAIN(TestQuintarDialog)
#include "TestQuintarDialog.moc"
