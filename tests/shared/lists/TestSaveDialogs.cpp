#include "shared/actionutils/CActionUtils.h"
#include "shared/lists/CSaveAsActionlistDialog.h"
#include "shared/lists/CSaveAsCollectionDialog.h"
#include "support/Methods.h"
#include "support/Rows.h"
#include "support/folders/ManualsSettings.h"
#include "support/folders/TemporaryHome.h"
#include "support/people/OpenedDialog.h"
#include "support/people/Person.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

namespace {
using Map = QMap<QString, QVariant>;

const char* const blankNames[] = {"", " ", "\t", " \t  ", "\xe2\x80\x83"};

/// Translates everything into its own context and text.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QByteArray(context) == "saveAsActionlistDialog" ||
                       QByteArray(context) == "saveAsCollectionDialog"
                   ? QString("%1/%2").arg(context, text)
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

using List = OpenedDialog<CSaveAsActionlistDialog>;
using Collection = OpenedDialog<CSaveAsCollectionDialog>;

} // namespace

class TestSaveDialogs : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;
    Map m_prefs;
    QWidget m_parent;

private slots:
    void initTestCase() { m_parent.setObjectName("EditInitialViewPrefsDialog"); }

    void init()
    {
        m_home.reset();
        m_prefs = manualsSettings();
    }

    void declaresItsMethodsInOrder()
    {
        QCOMPARE(methodsOf<CSaveAsActionlistDialog>(),
                 (QStringList{"signal actionListChanged(QString)", "slot on_Save()", "slot on_UpdateUI()"}));
        QCOMPARE(methodsOf<CSaveAsCollectionDialog>(),
                 (QStringList{"slot on_Save()", "slot on_CollectionIcon()", "slot on_UpdateUI()",
                              "slot on_SaveToFile()"}));
    }

    void opensWithItsInitialState()
    {
        QVERIFY(writeFile(m_home.actionList("a.xqq"), "[General]\nSequenceCategory=Reports\n"));
        List list(m_parent, m_prefs);
        QCOMPARE(list.objectName(), QString("saveAsActionlistDialog"));
        QCOMPARE(list.windowTitle(), QString("Add To Action"));
        QCOMPARE(list.findChild<QLabel*>("QDtitleLabel")->text(), list.windowTitle());
        QVERIFY(list.ui.newActionListRadioButton->isChecked() && !list.ui.saveButton->isEnabled());
        QVERIFY(list.focusWidget() == list.ui.actionListNameLineEdit);
        QStringList categories;
        for (int i = 0; i < list.ui.categoryComboBox->count(); ++i)
            categories.append(list.ui.categoryComboBox->itemText(i));
        QCOMPARE(categories, (QStringList{"Default", "Favorites", "Reports"}));
        QCOMPARE(list.ui.categoryComboBox->currentText(), QString("Default"));
        QCOMPARE(list.size(), QSize(401, 191 + 35));

        Collection collection(m_parent, m_prefs);
        QCOMPARE(collection.objectName(), QString("saveAsCollectionDialog"));
        QCOMPARE(collection.windowTitle(), QString("Add To Favorites"));
        QCOMPARE(collection.findChild<QLabel*>("QDtitleLabel")->text(), collection.windowTitle());
        QVERIFY(!collection.ui.saveButton->isEnabled() &&
                collection.focusWidget() == collection.ui.collectionNameLineEdit);
        QVERIFY(!collection.ui.icon_toolButton->icon().isNull());
        QCOMPARE(collection.ui.icon_toolButton->size(), QSize(60, 60));
        QCOMPARE(collection.size(), QSize(361, 201 + 35));
    }

    void clipsNoText()
    {
        List list(m_parent, m_prefs);
        Collection collection(m_parent, m_prefs);
        const auto buttons =
            list.findChildren<QAbstractButton*>() + collection.findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons)
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
        QVERIFY(collection.ui.label_2->height() >= collection.ui.label_2->heightForWidth(collection.width()));
    }

    void keepsItsTextsDarkInADarkTheme()
    {
        const QPalette standard = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(45, 45, 48)));
        Collection dialog(m_parent, m_prefs);
        for (const QLabel* label : dialog.ui.main_widget->findChildren<QLabel*>())
            QVERIFY2(label->palette().color(QPalette::WindowText).lightness() < 64,
                     qPrintable(label->text()));
        QApplication::setPalette(standard);
    }

    void translatesItsTextsInItsContext()
    {
        ContextTranslator translator;
        qApp->installTranslator(&translator);
        CSaveAsActionlistDialog list(&m_parent);
        CSaveAsCollectionDialog collection(&m_parent);
        QCOMPARE(list.ui.label_2->text(), QString("saveAsActionlistDialog/Category:"));
        QCOMPARE(list.windowTitle(), QString("saveAsActionlistDialog/Add To Action"));
        QCOMPARE(collection.ui.icon_toolButton->toolTip(), QString("saveAsCollectionDialog/Change Icon"));
        QCOMPARE(
            collection.ui.label_2->text(),
            QString("saveAsCollectionDialog/<html><head/><body><p>Store your current tool preferences into "
                    "the favorites and easily access them. </p></body></html>"));
        // The categories that the box offers are values, not texts.
        QCOMPARE(list.ui.categoryComboBox->itemText(0), QString("Default"));
        qApp->removeTranslator(&translator);
    }

    void leadsTheTabKeyInOrder()
    {
        List list(m_parent, m_prefs);
        list.ui.actionListNameLineEdit->setText("x");
        QCOMPARE(person::tabOrder(list),
                 (QStringList{"actionListNameLineEdit", "categoryComboBox", "cancelButton", "saveButton",
                              "newActionListRadioButton"}));
        list.hide();

        Collection collection(m_parent, m_prefs);
        collection.ui.collectionNameLineEdit->setText("x");
        collection.ui.icon_toolButton->setFocus();
        QCOMPARE(person::tabOrder(collection),
                 (QStringList{"icon_toolButton", "collectionNameLineEdit", "saveSettingsToFileButton",
                              "saveButton", "cancelButton"}));
    }

    // Return saves as the ticked choice says, whatever has the focus: so that is where the focus goes.
    void leadsBackFromTheNameToTheTickedChoice()
    {
        List list(m_parent, m_prefs);
        const auto before = [&list] {
            list.ui.actionListNameLineEdit->setFocus();
            QTest::keyClick(list.ui.actionListNameLineEdit, Qt::Key_Tab, Qt::ShiftModifier);
            return list.focusWidget()->objectName();
        };
        QCOMPARE(before(), QString("newActionListRadioButton"));
        click(list.ui.addToActionListRadioButton);
        QCOMPARE(before(), QString("addToActionListRadioButton"));
        QTest::keyClick(list.focusWidget(), Qt::Key_Up);
        QCOMPARE(before(), QString("newActionListRadioButton"));
        list.ui.addToActionListRadioButton->setChecked(true);
        QCOMPARE(before(), QString("addToActionListRadioButton"));
    }

    void savesOnlyUnderAVisibleName()
    {
        CSaveAsActionlistDialog list(&m_parent);
        CSaveAsCollectionDialog collection(&m_parent);
        for (const char* blank : blankNames) {
            list.ui.actionListNameLineEdit->setText(QString(" a ") + blank);
            collection.ui.collectionNameLineEdit->setText(QString(" a ") + blank);
            QVERIFY(list.ui.saveButton->isEnabled() && collection.ui.saveButton->isEnabled());
            list.ui.actionListNameLineEdit->setText(QString::fromUtf8(blank));
            collection.ui.collectionNameLineEdit->setText(QString::fromUtf8(blank));
            QVERIFY(!list.ui.saveButton->isEnabled() && !collection.ui.saveButton->isEnabled());
        }
    }

    void savesANewList()
    {
        List dialog(m_parent, m_prefs);
        const QSignalSpy changed(&dialog, SIGNAL(actionListChanged(QString)));
        QTest::keyClicks(dialog.ui.actionListNameLineEdit, "Monthly reports");
        click(dialog.ui.saveButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!dialog.isVisible() && changed.isEmpty());
        const QString path = m_home.actionList("Monthly_reports.xqq");
        QCOMPARE(storedValue(path, "SequenceName").toString(), QString("Monthly reports"));
        QCOMPARE(storedValue(path, "SequenceCategory").toString(), QString("Default"));
        Map expected = manualsSettings();
        expected.remove("ActionName");
        QCOMPARE(m_prefs, expected);
    }

    void storesATypedCategory()
    {
        for (const QString& typed : {QString("My own"), QString()}) {
            List dialog(m_parent, m_prefs);
            QTest::keyClicks(dialog.ui.actionListNameLineEdit, "one");
            QLineEdit* box = dialog.ui.categoryComboBox->lineEdit();
            box->setFocus();
            box->selectAll();
            QTest::keyClick(box, Qt::Key_Delete);
            QTest::keyClicks(box, typed);
            QTest::keyClick(box, Qt::Key_Return);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(storedValue(m_home.actionList("one.xqq"), "SequenceCategory").toString(),
                     typed.isEmpty() ? QString("Favorites") : typed);
        }
    }

    void savesOnceForOneReturn_data()
    {
        const Rows<bool, int, bool> row;
        row("new, Return", false, int(Qt::Key_Return), true);
        row("add, Return", true, int(Qt::Key_Return), true);
        row("add, elsewhere", true, int(Qt::Key_Enter), false);
    }

    void savesOnceForOneReturn()
    {
        const auto [add, key, inField] = Rows<bool, int, bool>::current();
        Map first = manualsSettings();
        first["ActionListName"] = "my list";
        CActionUtils::SaveAsCustomActionList(&first);

        List dialog(m_parent, m_prefs);
        const QSignalSpy changed(&dialog, SIGNAL(actionListChanged(QString)));
        const QSignalSpy finished(&dialog, SIGNAL(finished(int)));
        if (add)
            click(dialog.ui.addToActionListRadioButton);
        QCOMPARE(dialog.ui.categoryComboBox->isEnabled(), !add);
        QTest::keyClicks(dialog.ui.actionListNameLineEdit, "my list");
        QWidget* focus = inField ? static_cast<QWidget*>(dialog.ui.actionListNameLineEdit)
                                 : dialog.ui.addToActionListRadioButton;
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key(key));

        QCOMPARE(finished.size(), 1);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(changed.size(), add ? 1 : 0);
        QVERIFY(!add || changed.first().first().toString() == "my list");
        const QString path = m_home.actionList("my_list.xqq");
        QCOMPARE(storedKeys(path).filter("ActionName").size(), add ? 2 : 1);
        QCOMPARE(storedValue(path, "ActionName0").toString(), QString("Initial View"));
        QVERIFY(!add || storedValue(path, "ActionPrefs1").toMap() == m_prefs);
        QCOMPARE(m_prefs.value("ActionListOverwrite", true).toBool(), !add);
    }

    void writesNothingWhenRejected_data()
    {
        const Rows<QString, int> row;
        row("Escape", "one", int(Qt::Key_Escape));
        row("Cancel", "one", 0);
        row("Return without a name", " ", int(Qt::Key_Return));
    }

    void writesNothingWhenRejected()
    {
        const auto [name, key] = Rows<QString, int>::current();
        List list(m_parent, m_prefs);
        Collection collection(m_parent, m_prefs);
        const auto leave = [key = key, name = name](QDialog* dialog, QLineEdit* field, QPushButton* cancel) {
            QTest::keyClicks(field, name);
            if (key == 0)
                click(cancel);
            else
                QTest::keyClick(field, Qt::Key(key));
            QCOMPARE(dialog->isVisible(), name.simplified().isEmpty());
            QCOMPARE(dialog->result(), int(QDialog::Rejected));
        };
        leave(&list, list.ui.actionListNameLineEdit, list.ui.cancelButton);
        leave(&collection, collection.ui.collectionNameLineEdit, collection.ui.cancelButton);
        QCOMPARE(m_prefs, manualsSettings());
        QVERIFY(filesIn(CUtils::GetSequenceFolder()).isEmpty());
        QVERIFY(filesIn(CUtils::GetCollectionsFolder()).isEmpty());
    }
};

QTEST_MAIN(TestSaveDialogs)
#include "TestSaveDialogs.moc"
