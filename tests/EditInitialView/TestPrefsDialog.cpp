#include "EditInitialView/CPrefsDialog.h"
#include "EditInitialView/InitialViewSettings.h"
#include "shared/CUtils.h"

#include "support/Methods.h"
#include "support/Rows.h"
#include "support/people/Mute.h"
#include "support/people/Person.h"

#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QUuid>
#include <QtTest>

#include <algorithm>
#include <utility>

using namespace initialview;

namespace {

using Prefs = QMap<QString, QVariant>;

/// The dialog with its lists filled.
class Dialog : public CPrefsDialog
{
public:
    explicit Dialog(QWidget* parent = nullptr) : CPrefsDialog(parent)
    {
        for (const Key& key : keys)
            if (!key.rows.empty())
                for (const char* row : key.rows)
                    person::widget<QComboBox>(*this, key.name)->addItem(row);
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

void tabTo(const char* name)
{
    for (std::size_t turn = 0; turn <= keys.size() && focusName() != name; ++turn)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(focusName(), QString(name));
}

void type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

/// The keys whose values differ.
QStringList differing(const Prefs& some, const Prefs& others)
{
    QStringList names;
    for (const Key& key : keys)
        if (some.value(key.name) != others.value(key.name))
            names << key.name;
    return names;
}

/// The words beside or on the widget that edits a key, without the colon that some have.
QString labelOf(const CPrefsDialog& dialog, const Key& key)
{
    const auto* widget = dialog.findChild<QWidget*>(
        key.isGroup() ? QString(key.name).replace("CheckBox", "Grp") : QString(key.name));
    if (const auto* group = qobject_cast<const QGroupBox*>(widget))
        return group->title();
    if (const auto* box = qobject_cast<const QCheckBox*>(widget))
        return box->text();
    const auto* form =
        widget != nullptr ? qobject_cast<QFormLayout*>(widget->parentWidget()->layout()) : nullptr;
    const auto* label = form != nullptr
                            ? qobject_cast<const QLabel*>(form->labelForField(const_cast<QWidget*>(widget)))
                            : nullptr;
    return label != nullptr && label->text().endsWith(':') ? label->text().chopped(1) : QString();
}

/// The object names of all that Tab is to reach, as a person reads the dialog: row by row, from the left.
QStringList readingOrder(const CPrefsDialog& dialog)
{
    QVector<const QWidget*> widgets;
    for (const QWidget* widget : dialog.ui.main_widget->findChildren<QWidget*>())
        if (widget->window() == &dialog && widget->isEnabled() && widget->focusProxy() == nullptr &&
            (widget->focusPolicy() & Qt::TabFocus) != 0)
            widgets << widget;
    const auto place = [&dialog](const QWidget* widget) {
        const QPoint corner = widget->mapTo(dialog.ui.main_widget, QPoint());
        return std::pair(corner.y(), corner.x());
    };
    std::sort(widgets.begin(), widgets.end(),
              [&place](const QWidget* a, const QWidget* b) { return place(a) < place(b); });
    QStringList names;
    for (const QWidget* widget : qAsConst(widgets))
        names << widget->objectName();
    return names;
}

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

    static void clipsNoText()
    {
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
    }

private slots:
    void initTestCase()
    {
        muteFrameWarnings();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
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
        QCOMPARE(differing(dialog.prefs(), expected), QStringList());
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
                const Prefs given = dialog.prefsAfter(prefs);
                QCOMPARE(differing(given, prefs), QStringList());
                QCOMPARE(given.size(), prefs.size());
            }
    }

    void readsOddValuesAsTheirTypeSays_data()
    {
        const Rows<QString, QVariant, QVariant> add;
        const auto row = [&add](const char* name, const QVariant& stored, const QVariant& written) {
            add(QString::asprintf("%s %s", name, qPrintable(stored.toString())), QString(name), stored,
                written);
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
        const auto [name, stored, written] = Rows<QString, QVariant, QVariant>::current();
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

    void asksForEveryKeyInItsWords()
    {
        const Dialog dialog;
        for (const Key& key : keys)
            if (key.type != ValueType::Text)
                QCOMPARE(labelOf(dialog, key), QString(key.label));
        for (const pdflibrary::PreferenceRow& preference : pdflibrary::viewerPreferences)
            QVERIFY2(preference.key == nullptr || findKey(preference.key) != nullptr, preference.key);
    }

    void tabGoesFromTopToBottom()
    {
        Dialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        for (const bool on : {true, false}) {
            dialog.ui.ViewerPrefsGrp->setChecked(on);
            dialog.ui.LayoutAndMagnGrp->setChecked(on);
            dialog.ui.LayoutAndMagnGrp->setFocus();
            QCOMPARE(person::tabOrder(dialog), readingOrder(dialog));
            // The groups' keys have widgets of other names, and the action's name has none.
            QCOMPARE(readingOrder(dialog).size(), on ? int(keys.size()) - 1 + 2 : 4);
        }
    }

    void isUsableByKeyboardAlone()
    {
        Dialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(focusName(), QString("LayoutAndMagnGrp"));
        tabTo(key::NavigationTab);
        type(Qt::Key_Down);
        tabTo(key::PageLayout);
        type(Qt::Key_End);
        QCOMPARE(dialog.ui.PageLayoutComboBox->toolTip(), QString("No preference set in document"));
        tabTo(key::Magnification);
        QTest::keyClicks(QApplication::focusWidget(), "800");
        tabTo(key::OpenToPage);
        type(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "42");
        tabTo(key::HideToolBars);
        for (const int key : {Qt::Key_Space, Qt::Key_Return})
            type(key);
        QVERIFY(dialog.result() == QDialog::Accepted && !dialog.isVisible());
        const Prefs prefs = dialog.prefs();
        QCOMPARE(prefs[key::NavigationTab], QVariant(1));
        QCOMPARE(prefs[key::PageLayout], QVariant(6));
        QCOMPARE(prefs[key::Magnification], QVariant(11));
        QCOMPARE(prefs[key::OpenToPage], QVariant(42));
        QCOMPARE(prefs[key::HideToolBars], QVariant(true));

        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        type(Qt::Key_Escape);
        QVERIFY(dialog.result() == QDialog::Rejected && !dialog.isVisible());
    }

    void clipsNoTextInAnyFont()
    {
        const QFont standard = QApplication::font();
        for (const int pixels : {11, 13, 16, 24}) {
            QFont font = standard;
            font.setPixelSize(pixels);
            QApplication::setFont(font);
            clipsNoText();
        }
        QApplication::setFont(standard);
    }

    void remembersItsPlaceUnderThePreview()
    {
        QDir().mkpath(CUtils::GetSettingsFolder());
        QSettings(geometryFile(), QSettings::IniFormat).setValue("other/of/all", QUuid::createUuid());
        openAndMove("QuintarPreviewClass", {123, 45}, "QuintarPreviewClass");
        QCOMPARE(QSettings(geometryFile(), QSettings::IniFormat).allKeys(),
                 QStringList({"EditInitialViewPrefsDialoggeometry", "other/of/all"}));
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
        person::whenOpens("CSaveAsActionlistDialog", [&](QDialog& further) {
            QCOMPARE(further.parentWidget(), &dialog);
            person::widget<QLineEdit>(further, "actionListNameLineEdit")->setText("Two pages");
            person::click(further, "saveButton");
        });
        dialog.findChild<QToolButton*>("QDtoolbarAddToActionListButton")->click();
        QVERIFY(dialog.isVisible());
        const QSettings list(CUtils::GetSequenceFolder() + "/Two_pages.xqq", QSettings::IniFormat);
        QCOMPARE(list.value("ActionName0").toString(), QString(actionName));
        prefs.remove(key::ActionName); // it has a place of its own in the list
        QCOMPARE(list.value("ActionPrefs0").toMap(), prefs);
        QCOMPARE(dialog.prefs()[key::ActionName], QVariant(actionName));
    }

    void closesAsRejectedAfterTheFavourites()
    {
        for (const QString button : {"saveButton", "cancelButton"}) {
            Dialog dialog;
            QPixmap image(128, 128);
            image.fill(Qt::red);
            QIcon icon;
            icon.addPixmap(image, QIcon::Selected, QIcon::Off);
            dialog.setWindowIcon(icon);
            dialog.setResult(QDialog::Accepted);
            dialog.show();
            const Prefs prefs = dialog.prefsAfter({{key::OpenToPage, 17}});
            person::whenOpens("CSaveAsCollectionDialog", [&](QDialog& further) {
                const QIcon shown = further.findChild<QToolButton*>("icon_toolButton")->icon();
                QCOMPARE(shown.pixmap(QSize(128, 128)).toImage(), image.toImage());
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
    }

    void hasItsSlotsInOrder()
    {
        QCOMPARE(methodsOf<CPrefsDialog>(),
                 (QStringList{"slot on_QDShowSaveDialog()", "slot on_QDShowSaveCollectionDialog()",
                              "slot accept()", "slot reject()"}));
    }
};

QTEST_MAIN(TestPrefsDialog)
#include "TestPrefsDialog.moc"
