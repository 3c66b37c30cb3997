// One person's tour: look at a document's view in the dialog, change it, keep it in each of the three ways,
// and run each over another document.
#include "host/cli/ConfigureCommand.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/TemporaryHome.h"
#include "support/people/Mute.h"
#include "support/people/Person.h"
#include "support/program/CommandRun.h"
#include "support/program/ProgramRun.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

class TestTour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { muteFrameWarnings(); }

    void keepsAndRunsWhatAPersonChose()
    {
        const QByteArray seen = QByteArray::fromStdString(
            PdfBuilder::simple("/PageMode /UseOutlines /PageLayout /OneColumn /OpenAction [ 4 0 R /Fit ] "
                               "/ViewerPreferences << /HideToolbar true >>"));
        QVERIFY(writeFile(m_home.filePath("seen.pdf"), seen));
        QVERIFY(writeFile(m_home.filePath("other.pdf"), QByteArray::fromStdString(PdfBuilder::simple())));

        configureAndKeep("QDtoolbarAddToActionListButton", "CSaveAsActionlistDialog", [](QDialog& dialog) {
            QTest::keyClicks(person::widget<QLineEdit>(dialog, "actionListNameLineEdit"), "Like a book");
            QTest::keyClick(person::widget<QLineEdit>(dialog, "actionListNameLineEdit"), Qt::Key_Return);
        });
        configureAndKeep("QDtoolbarAddToCollectionsButton", "CSaveAsCollectionDialog", [](QDialog& dialog) {
            QTest::keyClicks(person::widget<QLineEdit>(dialog, "collectionNameLineEdit"), "Best of all");
            person::click(dialog, "saveButton");
        });
        configureAndKeep("QDtoolbarAddToCollectionsButton", "CSaveAsCollectionDialog",
                         [this](QDialog& dialog) {
                             person::namesFile(m_home.filePath("kept.tsf"));
                             person::click(dialog, "saveSettingsToFileButton");
                         });
        QCOMPARE(bytesOf(m_home.filePath("seen.pdf")), seen);

        const ProgramRun lists(PROGRAM_FILE, {"lists", "--json"});
        QStringList names;
        for (const QJsonObject& stored : ProgramRun::jsonLines(lists.out))
            names += stored.value("name").toString();
        QCOMPARE(names, (QStringList{"Like a book", "Best of all"}));

        const QJsonObject before = shown("other.pdf");
        QVERIFY(before.value("pageMode").isNull());
        changesAnother("--list", "Like a book");
        changesAnother("--favorite", "Best of all");
        changesAnother("--tool-settings", m_home.filePath("kept.tsf"));
    }

private:
    /// Sees the document's view, and changes some of it by hand.
    void keepFrom(QDialog& settings)
    {
        const auto list = [&](const char* name) { return person::widget<QComboBox>(settings, name); };
        auto* page = person::widget<QSpinBox>(settings, "OpenToPageSpinBox");
        QCOMPARE(list("NavigationTabComboBox")->currentText(), QString("Bookmarks Panel and Page"));
        QCOMPARE(list("MagnificationComboBox")->currentText(), QString("Fit Page"));
        QCOMPARE(page->value(), 2);
        QTest::keyClick(list("NavigationTabComboBox"), Qt::Key_Down);
        QTest::keyClick(list("MagnificationComboBox"), Qt::Key_Down);
        QTest::keyClick(list("ShowComboBox"), Qt::Key_End);
        page->selectAll();
        QTest::keyClicks(page, "3");
        QTest::keyClick(person::widget<QCheckBox>(settings, "HideMenuBarCheckBox"), Qt::Key_Space);
    }

    void configureAndKeep(const char* headerButton, const char* dialogClass, const person::Answer& keep)
    {
        bool kept = false;
        person::whenOpens("CPrefsDialog", [&](QDialog& settings) {
            keepFrom(settings);
            person::whenOpens(dialogClass, [&](QDialog& dialog) {
                keep(dialog);
                kept = true;
            });
            person::click(settings, headerButton);
            if (settings.isVisible())
                person::click(settings, "cancelButton");
        });
        const CommandRun run(host::ConfigureCommand(), {m_home.filePath("seen.pdf")});
        QCOMPARE(run.status, 1); // what is kept is kept; the window itself was left without OK
        QVERIFY(kept);
    }

    void changesAnother(const QString& option, const QString& kept) const
    {
        const QString folder = m_home.filePath("out" + option);
        const ProgramRun run(PROGRAM_FILE, {"run", "-o", folder, m_home.filePath("other.pdf"), option, kept});
        QVERIFY2(run.status == 0, run.err);
        opensAsChosen(shown("out" + option + "/other.pdf"));
        const QJsonObject catalog = QpdfReader(folder + "/other.pdf").catalog();
        QCOMPARE(catalog.value("/PageMode"), QJsonValue("/UseThumbs"));
    }

    static void opensAsChosen(const QJsonObject& view)
    {
        const QJsonObject expectedAction{
            {"page", 3}, {"type", "FitH"}, {"zoom", QJsonValue()}, {"name", QJsonValue()}};
        QCOMPARE(view.value("pageMode"), QJsonValue("UseThumbs"));
        QCOMPARE(view.value("pageLayout"), QJsonValue("OneColumn"));
        QCOMPARE(view.value("openAction").toObject(), expectedAction);
        const QJsonObject preferences = view.value("viewerPreferences").toObject();
        for (const char* name : {"HideToolbar", "HideMenubar", "DisplayDocTitle"})
            QVERIFY2(preferences.value(name).toBool(), name);
        for (const char* name : {"HideWindowUI", "FitWindow", "CenterWindow"})
            QVERIFY2(!preferences.value(name).toBool(), name);
    }

    QJsonObject shown(const QString& file) const
    {
        return ProgramRun::jsonLines(ProgramRun(PROGRAM_FILE, {"show", "--json", m_home.filePath(file)}).out)
            .value(0);
    }

    TemporaryHome m_home;
};

QTEST_MAIN(TestTour)
#include "TestTour.moc"
