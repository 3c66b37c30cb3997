#include "EditInitialView/CPrefsDialog.h"
#include "EditInitialView/InitialViewSettings.h"
#include "shared/CUtils.h"

#include "support/Mute.h"

#include <QDir>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace initialview;

namespace {

using Prefs = QMap<QString, QVariant>;

/// The dialog with its lists filled.
class Dialog : public CPrefsDialog
{
public:
    explicit Dialog(QWidget* parent = nullptr) : CPrefsDialog(parent)
    {
        fill(ui.NavigationTabComboBox, navigationLabels);
        fill(ui.PageLayoutComboBox, pageLayoutLabels);
        fill(ui.MagnificationComboBox, magnificationLabels);
        fill(ui.ShowComboBox, titleLabels);
    }

    Prefs prefs()
    {
        Prefs prefs;
        GetPrefs(&prefs);
        return prefs;
    }

    Prefs prefsAfter(Prefs prefs)
    {
        SetPrefs(&prefs);
        return this->prefs();
    }

private:
    template <class Labels>
    static void fill(QComboBox* list, const Labels& labels)
    {
        for (const char* label : labels)
            list->addItem(label);
    }
};

QVariant valueOf(const Key& key, int number)
{
    if (key.type == ValueType::Text)
        return QString(actionName);
    return key.type == ValueType::Flag ? QVariant(number != 0) : QVariant(number);
}

/// The key's whole range, long ones in strides.
QVector<int> numbersOf(const Key& key)
{
    QVector<int> numbers{key.highest};
    const int stride = std::max(1, (key.highest - key.lowest) / 200);
    for (int number = key.lowest; number < key.highest; number += stride)
        numbers << number;
    return numbers;
}

Prefs randomPrefs(QRandomGenerator& random)
{
    Prefs prefs;
    for (const Key& key : keys)
        prefs[key.name] = valueOf(key, key.lowest + random.bounded(key.highest - key.lowest + 1));
    return prefs;
}

QString focusName()
{
    const QWidget* widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName() : QString();
}

void type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

/// Once a further dialog is up, hands it over; closes it if it is still up then.
void withNextDialog(const std::function<void(QDialog&)>& use)
{
    auto* timer = new QTimer(qApp);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, [timer, use] {
        timer->deleteLater();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        use(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    timer->start(0);
}

/// The objects that Tab reaches, beginning with the one that has the focus.
QStringList tabOrder()
{
    QStringList order;
    while (!order.contains(focusName())) {
        order << focusName();
        type(Qt::Key_Tab);
    }
    return order;
}

const QStringList layoutFields{"NavigationTabComboBox", "PageLayoutComboBox", "MagnificationComboBox",
                               "OpenToPageSpinBox"};
const QStringList viewerFields{"HideToobarsCheckBox",
                               "ResizeWinToInitPageCheckBox",
                               "HideMenuBarCheckBox",
                               "CenterWinOnScreenCheckBox",
                               "HideCtrlWindowsCheckBox",
                               "OpenInFullScreenCheckBox",
                               "ShowComboBox"};

} // namespace

class TestPrefsDialog : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;

    static QString geometryFile() { return CUtils::GetSettingsFolder() + "/QuintarViewerSettings.qsf"; }

    /// Opens a dialog from a host of the given name and leaves it at another place.
    static void openAndMove(const QString& hostName, const QPoint& place, const QString& laterName)
    {
        QWidget host;
        host.setObjectName(hostName);
        Dialog dialog(&host);
        dialog.move(place);
        host.setObjectName(laterName);
    }

    static QPoint placeOfNext()
    {
        QWidget host;
        host.setObjectName("QuintarPreviewClass");
        return Dialog(&host).pos();
    }

private slots:
    void initTestCase()
    {
        muteFrameWarnings();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
        CUtils::SetOpenGLSupport(false);
    }

    void init() { QDir(CUtils::GetSettingsFolder()).removeRecursively(); }

    void startsWithBothGroupsOn()
    {
        Dialog dialog;
        Prefs expected;
        for (const Key& key : keys)
            expected[key.name] = valueOf(key, key.lowest);
        expected[key::LayoutAndMagn] = true;
        expected[key::ViewerPrefs] = true;
        QCOMPARE(dialog.prefs(), expected);
        QCOMPARE(dialog.size(), QSize(401, 371 + 35));
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QCOMPARE(dialog.findChild<QLabel*>("QDtitleLabel")->text(), QString("Initial View"));
    }

    void givesBackWhatItWasGiven()
    {
        Dialog dialog;
        QRandomGenerator random(20240229);
        for (const Key& key : keys)
            for (const int number : numbersOf(key)) {
                Prefs prefs = randomPrefs(random);
                prefs[key.name] = valueOf(key, number);
                QCOMPARE(dialog.prefsAfter(prefs), prefs);
            }
    }

    void readsOddValuesAsTheirTypeSays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("written");
        const auto row = [](const char* name, const QVariant& stored, const QVariant& written) {
            QTest::addRow("%s %s", name, qPrintable(stored.toString())) << QString(name) << stored << written;
        };
        // A row that the list does not have selects none.
        for (const char* list : {key::NavigationTab, key::PageLayout, key::Magnification, key::Show}) {
            row(list, 99, -1);
            row(list, -1, -1);
            row(list, "a text", 0);
            row(list, "1", 1);
        }
        row(key::OpenToPage, 0, 1);
        row(key::OpenToPage, -7, 1);
        row(key::OpenToPage, 12000, 9999);
        row(key::OpenToPage, "a text", 1);
        row(key::HideToolBars, "true", true);
        row(key::HideMenuBar, "false", false);
        row(key::LayoutAndMagn, 2, true);
        row(key::OpenInFullScreen, "a text", true);
    }

    void readsOddValuesAsTheirTypeSays()
    {
        QFETCH(QString, name);
        QFETCH(QVariant, stored);
        QFETCH(QVariant, written);
        Dialog dialog;
        QCOMPARE(dialog.prefsAfter({{name, stored}}).value(name), written);
        QCOMPARE(dialog.prefsAfter({{name, 1}}).value(name).toInt(), 1);
    }

    void clearsWhatIsMissingAndKeepsWhatIsForeign()
    {
        Dialog dialog;
        QRandomGenerator random(7);
        dialog.prefsAfter(randomPrefs(random));
        Prefs expected;
        for (const Key& key : keys)
            expected[key.name] = valueOf(key, key.lowest);
        expected[key::Magnification] = 5;
        QCOMPARE(dialog.prefsAfter({{key::Magnification, 5}}), expected);

        Prefs prefs{{"CollectionName", "mine"}, {key::ActionName, "another"}};
        dialog.GetPrefs(&prefs);
        expected["CollectionName"] = "mine";
        QCOMPARE(prefs, expected);
    }

    void tabGoesFromTopToBottom()
    {
        Dialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        dialog.ui.LayoutAndMagnGrp->setFocus();
        const QStringList end{"okButton", "cancelButton"};
        QCOMPARE(tabOrder(), QStringList("LayoutAndMagnGrp") + layoutFields + QStringList("ViewerPrefsGrp") +
                                 viewerFields + end);
        dialog.ui.ViewerPrefsGrp->setChecked(false);
        dialog.ui.LayoutAndMagnGrp->setChecked(false);
        dialog.ui.LayoutAndMagnGrp->setFocus();
        QCOMPARE(tabOrder(), QStringList({"LayoutAndMagnGrp", "ViewerPrefsGrp"}) + end);
    }

    void isUsableByKeyboardAlone()
    {
        Dialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(focusName(), QString("LayoutAndMagnGrp"));
        type(Qt::Key_Tab);
        type(Qt::Key_Down);
        type(Qt::Key_Tab);
        type(Qt::Key_End);
        QCOMPARE(dialog.ui.PageLayoutComboBox->toolTip(), QString("No preference set in document"));
        type(Qt::Key_Tab);
        QTest::keyClicks(QApplication::focusWidget(), "800");
        type(Qt::Key_Tab);
        type(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "42");
        type(Qt::Key_Tab);
        type(Qt::Key_Tab);
        type(Qt::Key_Space);
        type(Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        const Prefs prefs = dialog.prefs();
        QCOMPARE(prefs[key::NavigationTab], QVariant(1));
        QCOMPARE(prefs[key::PageLayout], QVariant(6));
        QCOMPARE(prefs[key::Magnification], QVariant(11));
        QCOMPARE(prefs[key::OpenToPage], QVariant(42));
        QCOMPARE(prefs[key::HideToolBars], QVariant(true));

        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        type(Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
    }

    void clipsNoTextInAnyFont_data()
    {
        QTest::addColumn<int>("pixels");
        for (const int pixels : {11, 13, 16, 24})
            QTest::addRow("%d pixels", pixels) << pixels;
    }

    void clipsNoTextInAnyFont()
    {
        QFETCH(int, pixels);
        const QFont standard = QApplication::font();
        QFont font = standard;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        Dialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        for (const QCheckBox* box : dialog.findChildren<QCheckBox*>())
            QVERIFY2(box->width() >= box->sizeHint().width(), qPrintable(box->text()));
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
        // Too long for the closed list, but told apart by their last words.
        const auto shown = [&dialog](int row) {
            dialog.ui.PageLayoutComboBox->setCurrentIndex(row);
            return dialog.ui.PageLayoutComboBox->grab().toImage();
        };
        QVERIFY(shown(2) != shown(3));
        QVERIFY(shown(4) != shown(5));
        QApplication::setFont(standard);
    }

    void remembersItsPlaceUnderThePreview()
    {
        QDir().mkpath(CUtils::GetSettingsFolder());
        QSettings(geometryFile(), QSettings::IniFormat).setValue("other", 1);
        openAndMove("QuintarPreviewClass", {123, 45}, "QuintarPreviewClass");
        QCOMPARE(QSettings(geometryFile(), QSettings::IniFormat).allKeys(),
                 QStringList({"EditInitialViewPrefsDialoggeometry", "other"}));
        QCOMPARE(placeOfNext(), QPoint(123, 45));
    }

    void remembersNothingElsewhere()
    {
        const QPoint centred = placeOfNext();
        QFile::remove(geometryFile());
        openAndMove("QuintarClass", {123, 45}, "QuintarClass");
        openAndMove("QuintarPreviewClass", {123, 45}, "renamed");
        QVERIFY(!QFile::exists(geometryFile()));
        openAndMove("QuintarPreviewClass", {123, 45}, "QuintarPreviewClass");
        QVERIFY(Dialog().pos() != QPoint(123, 45));
        QSettings(geometryFile(), QSettings::IniFormat).setValue("EditInitialViewPrefsDialoggeometry", "?");
        QCOMPARE(placeOfNext(), centred);
    }

    void closesThoughThePlaceCannotBeKept()
    {
        QDir().mkpath(geometryFile() + ".lock/stuck");
        QElapsedTimer timer;
        timer.start();
        openAndMove("QuintarPreviewClass", {123, 45}, "QuintarPreviewClass");
        QVERIFY(timer.elapsed() < 10000);
        QFile::remove(geometryFile());
        QDir().mkpath(geometryFile());
        openAndMove("QuintarPreviewClass", {123, 45}, "QuintarPreviewClass");
        QVERIFY(QFileInfo(geometryFile()).isDir());
    }

    void addsItsSettingsToAnActionListAndStays()
    {
        Dialog dialog;
        dialog.show();
        Prefs prefs = dialog.prefsAfter({{key::PageLayout, 4}, {key::HideMenuBar, true}});
        withNextDialog([&](QDialog& further) {
            QCOMPARE(further.metaObject()->className(), "CSaveAsActionlistDialog");
            QCOMPARE(further.parentWidget(), &dialog);
            further.findChild<QLineEdit*>("actionListNameLineEdit")->setText("Two pages");
            further.findChild<QPushButton*>("saveButton")->click();
        });
        dialog.findChild<QToolButton*>("QDtoolbarAddToActionListButton")->click();
        QVERIFY(dialog.isVisible());
        const QSettings list(CUtils::GetSequenceFolder() + "/Two_pages.xqq", QSettings::IniFormat);
        QCOMPARE(list.value("ActionName0").toString(), QString(actionName));
        prefs.remove(key::ActionName); // it has a place of its own in the list
        QCOMPARE(list.value("ActionPrefs0").toMap(), prefs);
        QCOMPARE(dialog.prefs()[key::ActionName], QVariant(actionName));
    }

    void closesAsRejectedAfterTheFavourites_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("saved") << "saveButton";
        QTest::newRow("cancelled") << "cancelButton";
    }

    void closesAsRejectedAfterTheFavourites()
    {
        QFETCH(QString, button);
        Dialog dialog;
        QPixmap image(128, 128);
        image.fill(Qt::red);
        QIcon icon;
        icon.addPixmap(image, QIcon::Selected, QIcon::Off);
        dialog.setWindowIcon(icon);
        dialog.setResult(QDialog::Accepted);
        dialog.show();
        const Prefs prefs = dialog.prefsAfter({{key::OpenToPage, 17}});
        withNextDialog([&](QDialog& further) {
            QCOMPARE(further.metaObject()->className(), "CSaveAsCollectionDialog");
            const QIcon icon = further.findChild<QToolButton*>("icon_toolButton")->icon();
            QCOMPARE(icon.pixmap(QSize(128, 128)).toImage(), image.toImage());
            further.findChild<QLineEdit*>("collectionNameLineEdit")->setText("Page 17 " + button);
            further.findChild<QPushButton*>(button)->click();
        });
        dialog.findChild<QToolButton*>("QDtoolbarAddToCollectionsButton")->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));

        const QString file = CUtils::GetCollectionsFolder() + "/Page 17 " + button + ".ini";
        QCOMPARE(QFile::exists(file), button == "saveButton");
        if (button == "saveButton") {
            Prefs stored = QSettings(file, QSettings::IniFormat).value("ActionPrefs").toMap();
            QCOMPARE(stored.take("CollectionName"), QVariant("Page 17 saveButton"));
            QCOMPARE(stored, prefs);
        }
    }

    void hasItsSlotsInOrder()
    {
        const QMetaObject& meta = CPrefsDialog::staticMetaObject;
        QStringList methods;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
            methods << meta.method(index).methodSignature();
        QCOMPARE(methods, QStringList({"on_QDShowSaveDialog()", "on_QDShowSaveCollectionDialog()", "accept()",
                                       "reject()"}));
    }
};

QTEST_MAIN(TestPrefsDialog)
#include "TestPrefsDialog.moc"
