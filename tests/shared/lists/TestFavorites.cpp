#include "shared/CErrorHandler.h"
#include "shared/lists/CActionHistoryAPI.h"
#include "support/folders/ManualsSettings.h"
#include "support/folders/TemporaryHome.h"

#include <QApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPixmap>
#include <QSettings>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <climits>
#include <memory>

namespace {

using Map = QMap<QString, QVariant>;

QString lastRecord;

Map named(const QString& name)
{
    Map prefs = manualsSettings();
    prefs["CollectionName"] = name;
    return prefs;
}

QIcon coloured(const QSize& size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

int save(const Map& prefs, const QIcon& icon = coloured(QSize(16, 16)))
{
    Map lent = prefs;
    QIcon lentIcon = icon;
    const int result =
        CActionHistoryAPI("EditInitialViewPrefsDialog").SaveSettingsToHistory(&lent, &lentIcon);
    return lent == prefs ? result : -1;
}

/// Writes a file with this text as its only setting, last changed so many seconds after some fixed moment.
void age(const QString& name, long seconds, const QByteArray& content = QByteArray())
{
    const QString path = TemporaryHome::favorite(name);
    if (content.isEmpty())
        QSettings(path, QSettings::IniFormat).setValue("ActionPrefs", Map{{"file", name}});
    else
        QVERIFY(writeFile(path, content));
    const timespec moment{1600000000 + seconds, 0};
    const timespec times[2] = {moment, moment};
    QCOMPARE(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
}

/// The text that age() stored in the file that a step leads to; "null" for a null map.
QString read(CActionHistoryAPI& store, int step)
{
    const std::unique_ptr<Map> prefs(store.LoadSettingsFromHistory(step));
    return prefs ? prefs->value("file").toString() : "null";
}

/// An icon that cannot be drawn.
class ThrowingEngine : public QIconEngine
{
public:
    void paint(QPainter*, const QRect&, QIcon::Mode, QIcon::State) override { throw 1; }
    QPixmap pixmap(const QSize&, QIcon::Mode, QIcon::State) override { throw 1; }
    QIconEngine* clone() const override { return new ThrowingEngine; }
};

} // namespace

// Takes the place of the library's log entry point.
void StoreErrorToLog(const char* text)
{
    lastRecord = QString::fromUtf8(text);
}

class TestFavorites : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

private slots:
    void init() { m_home.reset(); }

    void storesSettingsAndIcon()
    {
        QVERIFY(writeFile(m_home.favorite("Work set.ini"), "[General]\nOther=1\n[group]\nk=2\n"));
        QCOMPARE(save(named("Work set")), 0);
        const QSettings file(m_home.favorite("Work set.ini"), QSettings::IniFormat);
        QCOMPARE(file.allKeys(), (QStringList{"ActionIcon", "ActionPrefs"}));
        QCOMPARE(file.value("ActionPrefs").toMap(), named("Work set"));
        QCOMPARE(file.value("ActionIcon").type(), QVariant::Image);
    }

    void limitsTheIcon()
    {
        for (const auto& [given, stored] : {std::pair<QSize, QSize>{{128, 128}, {42, 42}},
                                            {{16, 16}, {16, 16}},
                                            {{84, 42}, {42, 21}},
                                            {{}, {0, 0}}}) {
            QCOMPARE(save(named("icon"), given.isValid() ? coloured(given) : QIcon()), 0);
            const QSettings file(m_home.favorite("icon.ini"), QSettings::IniFormat);
            const auto image = file.value("ActionIcon").value<QImage>();
            QCOMPARE(image.size(), stored);
            QVERIFY(image.isNull() || image.pixelColor(0, 0) == QColor(Qt::red));
        }
    }

    void usesNamesAsTheyAre()
    {
        const QString accented = QString::fromUtf8(" \xc3\xa9 *?:\\ ");
        for (const QString& name : {QString("..."), QString("sub/set"), accented}) {
            QCOMPARE(save(named(name)), 0);
            QVERIFY2(QFile::exists(m_home.favorite(name + ".ini")), qPrintable(name));
        }
        QCOMPARE(save(manualsSettings()), 0);
        QVERIFY(QFile::exists(m_home.favorite(".ini")));
    }

    void reportsSuccessWhereItCannotWrite()
    {
        QVERIFY(QDir().mkpath(m_home.favorite("folder.ini/filled")));
        QCOMPARE(save(named("folder")), 0);
        QVERIFY(QFile::exists(m_home.favorite("folder.ini/filled")));
        QVERIFY(QDir().mkpath(m_home.favorite("locked.ini.lock")));
        QCOMPARE(save(named("locked")), 0);
        QVERIFY(QFile::exists(m_home.favorite("locked.ini")));
        QCOMPARE(save(named(QString("a") + QChar(0))), 0);
        QCOMPARE(save(named(QString(300, 'n'))), 0);
    }

    void catchesWhatIsThrown()
    {
        QCOMPARE(save(named("one")), 0);
        const QByteArray before = bytesOf(m_home.favorite("one.ini"));
        QCOMPARE(save(named("one"), QIcon(new ThrowingEngine)), 1);
        QVERIFY(lastRecord.contains("CActionHistoryAPI"));
        QVERIFY(lastRecord.contains("\nFunction: SaveSettingsToHistory\n"));
        QCOMPARE(bytesOf(m_home.favorite("one.ini")), before);
    }

    void stepsFromNewestToOldest()
    {
        CActionHistoryAPI nothing("Edit");
        for (const int step : {0, 1, 1, -1, -5, 100})
            QCOMPARE(read(nothing, step), QString("null"));
        age("Edit3.ini", 300);
        age("Edit1.ini", 100);
        age("edit2.ini", 200);
        age("Other.ini", 400);
        age(".Edit4.ini", 500);
        QVERIFY(QDir().mkpath(m_home.favorite("Edit folder")));
        CActionHistoryAPI store("Edit");
        age("Edit5.ini", 600);

        QCOMPARE(read(store, 0), QString("null"));
        QCOMPARE(read(store, 1), QString("Edit3.ini"));
        QCOMPARE(read(store, 1), QString("edit2.ini"));
        QCOMPARE(read(store, 1), QString("Edit1.ini"));
        QCOMPARE(read(store, 1), QString("null"));
        QCOMPARE(read(store, 1), QString("null"));
        QCOMPARE(read(store, -2), QString("Edit1.ini"));
        QCOMPARE(read(store, -2), QString("Edit3.ini"));
        QCOMPARE(read(store, 0), QString("Edit3.ini"));
        QCOMPARE(read(store, -1), QString("null"));
        QCOMPARE(read(store, INT_MIN), QString("null"));
        QCOMPARE(read(store, INT_MIN), QString("null"));
        QCOMPARE(read(store, INT_MAX), QString("null"));
        QCOMPARE(read(store, 3), QString("Edit1.ini"));
    }

    void listsWhateverSuffixButReadsOnlySettings()
    {
        age("Edit.txt", 300, "no settings");
        age("Edit.ini", 200, "[General]\nActionPrefs=text\n");
        age("Edit.bak", 100);
        CActionHistoryAPI store("Edit");
        QCOMPARE(read(store, 1), QString("null"));
        const std::unique_ptr<Map> converted(store.LoadSettingsFromHistory(1));
        QVERIFY(converted && converted->isEmpty());
        QCOMPARE(read(store, 1), QString("Edit.bak"));
    }

    void readsTheStoredSample()
    {
        const QString sample = QString(TEST_DATA_DIR) + "/manuals.ini";
        QVERIFY(QFile::copy(sample, m_home.favorite("manuals.ini")));
        CActionHistoryAPI store("manuals");
        const std::unique_ptr<Map> prefs(store.LoadSettingsFromHistory(1));
        QVERIFY(prefs);
        QCOMPARE(*prefs, named("Manuals"));

        const QSettings file(sample, QSettings::IniFormat);
        QCOMPARE(file.value("ActionPrefs").toMap(), named("Manuals"));
        QCOMPARE(file.value("ActionIcon").value<QImage>().size(), QSize(42, 42));
    }
};

int main(int argc, char** argv)
{
    // Where icons hand out twice the pixels.
    qputenv("QT_SCALE_FACTOR", "2");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    TestFavorites test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestFavorites.moc"
