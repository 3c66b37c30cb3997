#include "shared/ini/StoreReport.h"
#include "shared/lists/CSaveAsCollectionDialog.h"
#include "support/Rows.h"
#include "support/folders/ManualsSettings.h"
#include "support/folders/TemporaryHome.h"
#include "support/people/OpenedDialog.h"
#include "support/people/Person.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPolygonF>
#include <QSettings>
#include <QSignalSpy>
#include <QTransform>

using Map = QMap<QString, QVariant>;
using Collection = OpenedDialog<CSaveAsCollectionDialog>;

/// What a favourite is made of, and settings that are kept in a file instead.
class TestFavoriteDialog : public QObject
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

    void savesAFavorite()
    {
        Collection dialog(m_parent, m_prefs);
        const QSignalSpy finished(&dialog, SIGNAL(finished(int)));
        QTest::keyClicks(dialog.ui.collectionNameLineEdit, "Work set");
        QTest::keyClick(dialog.ui.collectionNameLineEdit, Qt::Key_Return);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        const QString path = m_home.favorite("Work set.ini");
        Map expected = manualsSettings();
        expected["CollectionName"] = "Work set";
        QCOMPARE(m_prefs, expected);
        QCOMPARE(storedValue(path, "ActionPrefs").toMap(), expected);
        const QSize icon = storedValue(path, "ActionIcon").value<QImage>().size();
        QVERIFY(!icon.isEmpty() && icon.width() <= 42 && icon.height() <= 42);
    }

    void savesWithAPickedImage()
    {
        QImage image(300, 100, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(m_home.filePath("wide.png")));
        Collection dialog(m_parent, m_prefs);
        person::namesFile(m_home.filePath("wide.png"));
        click(dialog.ui.icon_toolButton);
        const QIcon picked = dialog.ui.icon_toolButton->icon();
        QCOMPARE(picked.availableSizes(), QList<QSize>{QSize(128, 128)});

        person::whenOpens("QFileDialog", [](QDialog& files) { files.reject(); });
        click(dialog.ui.icon_toolButton);
        QCOMPARE(dialog.ui.icon_toolButton->icon().cacheKey(), picked.cacheKey());

        QTest::keyClicks(dialog.ui.collectionNameLineEdit, "blue");
        click(dialog.ui.saveButton);
        const auto icon = storedValue(m_home.favorite("blue.ini"), "ActionIcon").value<QImage>();
        QCOMPARE(icon.size(), QSize(42, 42));
        QCOMPARE(icon.pixelColor(20, 20), QColor(Qt::blue));
    }

    void hasNoIconOfAPictureThatCannotBeRead_data()
    {
        const Rows<QByteArray, QString> row;
        // The beginning of a PNG file of 60,000 by 60,000 pixels.
        row("too large",
            QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAA6mAAAOpgCAIAAAAPsOIVAAAAAElEQVQ1rwYe"),
            " is too large, with 60000 x 60000 pixels");
        row("not offered", QByteArray("P2 1 1 9 0\n"), " is of another kind, pgm");
        row("none", QByteArray("no image"), " cannot be read: Unsupported image format");
    }

    void hasNoIconOfAPictureThatCannotBeRead()
    {
        const auto [bytes, reason] = Rows<QByteArray, QString>::current();
        QVERIFY(writeFile(m_home.filePath("bomb.png"), bytes));
        Collection dialog(m_parent, m_prefs);
        dialog.ui.icon_toolButton->setIcon(QIcon(QPixmap(20, 20)));
        storereport::begin();
        person::namesFile(m_home.filePath("bomb.png"));
        click(dialog.ui.icon_toolButton);
        QCOMPARE(storereport::take(),
                 QStringList{"no icon: the picture " + m_home.filePath("bomb.png") + reason});
        QVERIFY(dialog.ui.icon_toolButton->icon().isNull());
    }

    void savesSettingsToAFile()
    {
        const QString path = m_home.filePath("preset.tsf");
        Collection dialog(m_parent, m_prefs);
        bool writtenTooEarly = false;
        connect(&dialog, &QDialog::rejected, [&] { writtenTooEarly = QFile::exists(path); });
        QTest::keyClicks(dialog.ui.collectionNameLineEdit, "not a favourite");
        person::namesFile(path);
        click(dialog.ui.saveSettingsToFileButton);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible() && !writtenTooEarly);
        QCOMPARE(storedKeys(path), QStringList{"ToolSettings"});
        QCOMPARE(storedValue(path, "ToolSettings").toMap(), manualsSettings());
        QCOMPARE(m_prefs, manualsSettings());
        QVERIFY(filesIn(CUtils::GetCollectionsFolder()).isEmpty());
        // The format does not drift.
        QCOMPARE(bytesOf(path), bytesOf(QString(TEST_DATA_DIR) + "/manuals.tsf"));
    }

    void savesSettingsBesideValuesOfAnyKind()
    {
        const QString path = m_home.filePath("preset.tsf");
        QSettings(path, QSettings::IniFormat).setValue("a/b/c", QTransform(1, 2, 3, 4, 5, 6));
        m_prefs["of the host"] = QPolygonF({QPointF(1, 2)});
        Collection dialog(m_parent, m_prefs);
        person::namesFile(path);
        person::whenOpens("QMessageBox", [](QDialog& box) { // whether the file is to be replaced
            static_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click();
        });
        click(dialog.ui.saveSettingsToFileButton);
        QCOMPARE(storedKeys(path), (QStringList{"ToolSettings", "a/b/c"}));
        QCOMPARE(storedValue(path, "ToolSettings").toMap(), m_prefs);
    }

    void closesWhenTheFileDialogIsCancelled()
    {
        Collection dialog(m_parent, m_prefs);
        QString folder;
        person::whenOpens("QFileDialog", [&folder](QDialog& files) {
            folder = dynamic_cast<QFileDialog&>(files).directory().absolutePath();
            QTest::keyClick(&files, Qt::Key_Escape);
        });
        click(dialog.ui.saveSettingsToFileButton);
        QCOMPARE(folder, QDir::homePath());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(filesIn(QDir::homePath()).isEmpty());

        // It can be shown once more.
        dialog.ui.collectionNameLineEdit->setText("after all");
        dialog.on_Save();
        QCOMPARE(storedValue(m_home.favorite("after all.ini"), "ActionPrefs").toMap(), m_prefs);
    }

    void survivesBeingDeletedByARejection()
    {
        auto* prefs = new Map(manualsSettings());
        auto* dialog = new Collection(m_parent, *prefs);
        connect(dialog, &QDialog::rejected, [&prefs] {
            delete prefs;
            prefs = nullptr;
        });
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        person::namesFile(m_home.filePath("preset.tsf"));
        click(dialog->ui.saveSettingsToFileButton);
        QVERIFY(prefs == nullptr);
        QCOMPARE(storedValue(m_home.filePath("preset.tsf"), "ToolSettings").toMap(), manualsSettings());
    }
};

QTEST_MAIN(TestFavoriteDialog)
#include "TestFavoriteDialog.moc"
