#include "host/settings/SettingsFile.h"
#include "support/Rows.h"
#include "support/folders/Files.h"
#include "support/program/UsageErrors.h"

#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace host;

namespace {

using Read = std::vector<ActionEntry> (*)(const std::string&);

const SettingsMap sample{
    {"LayoutAndMagnCheckBox", true}, {"NavigationTabComboBox", 1}, {"OpenToPageSpinBox", 12},
    {"HideToobarsCheckBox", false},  {"ShowComboBox", 1},          {"ActionName", "Initial View"},
    {"MagnificationComboBox", 255},
};

const char stored[] =
    "@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x18\\0S\\0h\\0o\\0w\\0\\x43\\0o\\0m\\0\\x62\\0o"
    "\\0\\x42\\0o\\0x\\0\\0\\0\\x2\\0\\0\\0\\x1)";

} // namespace

class TestSettingsFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

    void readsWhatQSettingsWrites()
    {
        {
            QSettings list(m_folder.filePath("list.xqq"), QSettings::IniFormat);
            list.setValue("SequenceName", QString::fromUtf8("M\xc3\xa4rz, \"A\"; b=c @x"));
            list.setValue("SequenceCategory", "Work");
            list.setValue("IOSettings", 0);
            list.setValue("ActionName0", "Initial View");
            list.setValue("ActionPrefs0", sample);
            QSettings favorite(m_folder.filePath("favorite.ini"), QSettings::IniFormat);
            favorite.setValue("ActionPrefs", sample);
            favorite.setValue("ActionIcon", QImage(42, 42, QImage::Format_ARGB32));
            QSettings tool(m_folder.filePath("tool.tsf"), QSettings::IniFormat);
            tool.setValue("ToolSettings", sample);
        }
        for (const auto& entries : {settingsfile::readActionList(path("list.xqq")),
                                    settingsfile::readFavorite(path("favorite.ini")),
                                    settingsfile::readToolSettings(path("tool.tsf"))}) {
            QCOMPARE(entries.size(), std::size_t(1));
            QCOMPARE(entries[0].action, QString("Initial View"));
            QCOMPARE(entries[0].settings, sample);
        }
    }

    void readsStoredSamples()
    {
        const std::string folder = TEST_DATA_DIR;
        const SettingsMap list = settingsfile::readActionList(folder + "/manuals.xqq").at(0).settings;
        QCOMPARE(list.size(), 13);
        QCOMPARE(list.value("MagnificationComboBox"), QVariant(2));
        QCOMPARE(list.value("CenterWinOnScreenCheckBox"), QVariant(true));
        for (SettingsMap other : {settingsfile::readFavorite(folder + "/manuals.ini").at(0).settings,
                                  settingsfile::readToolSettings(folder + "/manuals.tsf").at(0).settings}) {
            QCOMPARE(other.take("ActionName"), QVariant("Initial View"));
            other.remove("CollectionName");
            QCOMPARE(other, list);
        }
    }

    void readsEveryKindOfValueAndText()
    {
        SettingsMap map{{"ShowComboBox", "1"}, {"MagnificationComboBox", 5.5}, {"a", 3u},
                        {"b", qlonglong(-7)},  {"c", qulonglong(7)},           {"d", QVariant()},
                        {"e", QString()}};
        QString everyCharacter;
        for (ushort character = 1; character < 0x180; ++character)
            everyCharacter += QChar(character);
        map["all"] = everyCharacter;
        map["odd"] = QString::fromUtf8("\xf0\x9f\x98\x80 \xe2\x82\xac, ; = \" \\ ) ( @Variant(");
        map[everyCharacter.left(300)] = -1;
        {
            QSettings tool(m_folder.filePath("tool.tsf"), QSettings::IniFormat);
            tool.setValue("ToolSettings", map);
            tool.setValue("Group/ToolSettings", 1);
        }
        QCOMPARE(settingsfile::readToolSettings(path("tool.tsf"))[0].settings, map);
    }

    void readsEntriesInTheOrderOfTheirNumbers()
    {
        {
            QSettings list(m_folder.filePath("many.xqq"), QSettings::IniFormat);
            for (const int number : {10, 2, 0, 9}) {
                list.setValue(QString("ActionName%1").arg(number), "Initial View");
                list.setValue(QString("ActionPrefs%1").arg(number),
                              SettingsMap{{"OpenToPageSpinBox", number}});
            }
            list.setValue("ActionName01", "Another");
            list.setValue("ActionPrefs3", SettingsMap{{"OpenToPageSpinBox", 3}});
        }
        QList<int> order;
        for (const ActionEntry& entry : settingsfile::readActionList(path("many.xqq")))
            order += entry.settings.value("OpenToPageSpinBox").toInt();
        QCOMPARE(order, (QList<int>{0, 2, 9, 10}));
    }

    void namesEntriesOfOtherActions()
    {
        {
            QSettings list(m_folder.filePath("others.xqq"), QSettings::IniFormat);
            list.setValue("ActionName0", "Initial View");
            list.setValue("ActionPrefs0", sample);
            list.setValue("ActionName1", "Water, mark");
            list.setValue("ActionName2", "@Split");
        }
        const std::string refusal = refusalOf(settingsfile::readActionList, path("others.xqq"));
        for (const char* named : {"others.xqq", "entry 1 is \"", "Water, mark", "entry 2 is \"@Split\""})
            QVERIFY2(refusal.find(named) != std::string::npos,
                     (std::string(named) + " in " + refusal).c_str());
    }

    void refuses_data()
    {
        const Rows<QByteArray, QByteArray> row;
        const auto map = [](const char* text) {
            return QByteArray("[General]\nToolSettings=") + text + "\n";
        };
        row("empty file", "", "no \"ToolSettings\"");
        row("PDF", "%PDF-1.7\n1 0 obj\n<<>>\n", "no \"ToolSettings\"");
        row("other group", QByteArray("[Other]\nToolSettings=") + stored, "no \"ToolSettings\"");
        row("other case", QByteArray("toolsettings=") + stored, "no \"ToolSettings\"");
        row("plain text", map("hello"), "not a settings map");
        row("empty map", map("@Variant(\\0\\0\\0\\b\\0\\0\\0\\0)"), "it is empty");
        row("an image", map("@Variant(\\0\\0\\0\\x46\\0\\0\\0\\0)"), "not a settings map");
        row("a list of texts", map("a, b"), "not a settings map");
        row("no end", map("@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1"), "not a settings map");
        row("open quote", map("\"@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1)"), "not a settings map");
        row("wrong escape", map("@Variant(\\q)"), "damaged");
        row("escape at the end", map("@Variant(\\"), "not a settings map");
        row("escape too large", map("@Variant(\\x12345)"), "damaged");
        row("more than bytes", map("@Variant(\\x100\\0\\0\\b)"), "damaged");
        row("claims more than it has",
            map("@Variant(\\0\\0\\0\\b\\0\\0\\0\\x2\\0\\0\\0\\x2\\0k\\0\\0\\0\\x1\\x1)"), "cut off");
        row("claims four milliards", map("@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xff)"), "cut off");
        row("a text of four gigabytes", map("@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1\\xff\\xff\\xff\\xfe\\0k)"),
            "cut off");
        row("an unknown type",
            map("@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x2\\0k\\0\\0\\0\\x3f\\0\\0\\0\\0)"),
            "a value, \"k\", that holds a value of the unknown type 63");
        row("something left over", map(QByteArray(stored).chopped(1) + "x)"), "followed by something else");
        row("settings of nobody",
            map("@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x2\\0k\\0\\0\\0\\x1\\x1)"), "another action");
    }

    void refuses()
    {
        const auto [bytes, reason] = Rows<QByteArray, QByteArray>::current();
        const std::string file = fileWith(bytes);
        const std::string refusal = refusalOf(settingsfile::readToolSettings, file);
        QVERIFY2(refusal.find(reason.toStdString()) != std::string::npos, refusal.c_str());
        QVERIFY2(refusal.find(file) == 0, refusal.c_str());
        QVERIFY(!refusalOf(settingsfile::readActionList, file).empty());
        QVERIFY(!refusalOf(settingsfile::readFavorite, file).empty());
    }

    void refusesWhatIsNoOrdinaryFile()
    {
        QCOMPARE(refusalOf(settingsfile::readFavorite, path("none")),
                 path("none") + ": no such file or directory");
        QCOMPARE(mkfifo(path("fifo").c_str(), 0600), 0);
        QCOMPARE(refusalOf(settingsfile::readFavorite, path("fifo")), path("fifo") + ": not a regular file");
        QCOMPARE(refusalOf(settingsfile::readFavorite, path(".")), path(".") + ": is a directory");
        const std::string large = fileWith(QByteArray("ActionPrefs=") + stored + "\n");
        QVERIFY(refusalOf(settingsfile::readFavorite, large).empty());
        QVERIFY(QFile::resize(QString::fromStdString(large), 17 << 20));
        QCOMPARE(refusalOf(settingsfile::readFavorite, large), large + ": too large for a settings file");
    }

    // A file that lost its end is refused wherever it was cut: no half of its settings is ever applied.
    void survivesEveryTruncation()
    {
        {
            QSettings tool(m_folder.filePath("whole.tsf"), QSettings::IniFormat);
            tool.setValue("ToolSettings",
                          SettingsMap{{"OpenToPageSpinBox", 12}, {"ActionName", "Initial View"}});
        }
        QFile whole(m_folder.filePath("whole.tsf"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QByteArray bytes = whole.readAll().trimmed();
        for (int length = 0; length < bytes.size(); ++length)
            QVERIFY2(!refusalOf(settingsfile::readToolSettings, fileWith(bytes.left(length))).empty(),
                     qPrintable(QString::number(length)));
        QVERIFY(refusalOf(settingsfile::readToolSettings, fileWith(bytes)).empty());
    }

    // Sizes and types in the stream are claims; a file of some MB must not cost gigabytes or minutes.
    void needsMemoryInProportion()
    {
        QByteArray nested = "ToolSettings=@Variant(";
        for (int level = 0; level < 200000; ++level)
            nested += "\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x2\\0k";
        QVERIFY(!refusalOf(settingsfile::readToolSettings, fileWith(nested + ")")).empty());
        const QByteArray bytes(2 << 20, '=');
        QVERIFY(!refusalOf(settingsfile::readToolSettings, fileWith(bytes)).empty());
    }

private:
    std::string path(const char* name) const { return m_folder.filePath(name).toStdString(); }

    std::string fileWith(const QByteArray& bytes) const
    {
        return writeFile(m_folder.filePath("settings"), bytes) ? path("settings") : std::string();
    }

    static std::string refusalOf(Read read, const std::string& file)
    {
        return ::refusalOf([&] { read(file); });
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSettingsFiles)
#include "TestSettingsFiles.moc"
