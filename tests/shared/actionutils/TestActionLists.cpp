#include "shared/actionutils/CActionUtils.h"
#include "support/Rows.h"
#include "support/folders/ManualsSettings.h"
#include "support/folders/TemporaryHome.h"

#include <QJsonObject>
#include <QSettings>
#include <QUuid>
#include <QtTest>

#include <sys/stat.h>

namespace {

using Map = QMap<QString, QVariant>;

Map request(const QString& name, bool overwrite, const QString& category = "Work")
{
    Map prefs = manualsSettings();
    prefs["ActionListName"] = name;
    prefs["ActionListCategory"] = category;
    prefs["ActionListOverwrite"] = overwrite;
    return prefs;
}

Map save(Map prefs)
{
    CActionUtils::SaveAsCustomActionList(&prefs);
    return prefs;
}

Map contentOf(const QString& path)
{
    const QSettings file(path, QSettings::IniFormat);
    Map content;
    for (const QString& key : file.allKeys())
        content[key] = file.value(key);
    return content;
}

Map entryPrefs()
{
    Map prefs = manualsSettings();
    prefs.remove("ActionName");
    return prefs;
}

QStringList sequenceFolder()
{
    return QDir(CUtils::GetSequenceFolder())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class TestActionLists : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

private slots:
    void init() { m_home.reset(); }

    void writesANewList()
    {
        QCOMPARE(save(request("My list 2", true)), entryPrefs());
        QCOMPARE(contentOf(m_home.actionList("My_list_2.xqq")), (Map{{"SequenceName", "My list 2"},
                                                                     {"SequenceCategory", "Work"},
                                                                     {"IOSettings", "0"},
                                                                     {"ActionName0", "Initial View"},
                                                                     {"ActionPrefs0", entryPrefs()}}));
    }

    void namesTheFileAfterTheList_data()
    {
        const Rows<QVariant, QString, QString> row;
        row("absent", {}, "Action.xqq", "");
        row("empty", "", ".xqq", "");
        row("only spaces change", "a.b  c", "a.b__c.xqq", "a.b  c");
        row("a tab stays", "a\tb:*?\\", "a\tb:*?\\.xqq", "a\tb:*?\\");
    }

    void namesTheFileAfterTheList()
    {
        const auto [name, file, sequenceName] = Rows<QVariant, QString, QString>::current();
        Map prefs = request("", true);
        prefs.remove("ActionListName");
        if (name.isValid())
            prefs["ActionListName"] = name;
        save(prefs);
        QCOMPARE(sequenceFolder(), QStringList{file});
        QCOMPARE(contentOf(m_home.actionList(file)).value("SequenceName").toString(), sequenceName);
    }

    void defaultsTheCategory()
    {
        save(request("empty", true, ""));
        QCOMPARE(contentOf(m_home.actionList("empty.xqq")).value("SequenceCategory").toString(),
                 QString("Favorites"));
        Map bare{{"ActionListName", "bare"}};
        CActionUtils::SaveAsCustomActionList(&bare);
        QVERIFY(bare.isEmpty());
        QCOMPARE(contentOf(m_home.actionList("bare.xqq")), (Map{{"SequenceName", "bare"},
                                                                {"SequenceCategory", "Favorites"},
                                                                {"IOSettings", "0"},
                                                                {"ActionName0", ""},
                                                                {"ActionPrefs0", Map()}}));
    }

    void replacesAList()
    {
        QCOMPARE(save(request("one", false)), entryPrefs()); // there is none to add to
        save(request("one", false));
        QVERIFY(contentOf(m_home.actionList("one.xqq")).contains("ActionName1"));
        QCOMPARE(save(request("one", true, "Other")), entryPrefs());
        const Map content = contentOf(m_home.actionList("one.xqq"));
        QVERIFY(!content.contains("ActionName1"));
        QCOMPARE(content.value("SequenceCategory").toString(), QString("Other"));
    }

    void addsToAList_data()
    {
        const Rows<QByteArray, int> row;
        row("at the end", "ActionName0=a\nActionPrefs0=p\nActionName1=b\n", 2);
        row("into the gap", "ActionName0=a\nActionName2=b\n", 1);
        row("only names count", "ActionPrefs0=p\nactionname0=q\n", 0);
        row("an empty name counts", "ActionName0=\n", 1);
    }

    void addsToAList()
    {
        const auto [entries, number] = Rows<QByteArray, int>::current();
        const QString path = m_home.actionList("my_list.xqq");
        QVERIFY(writeFile(path, "[General]\nSequenceName=old\nIOSettings=5\n" + entries + "\n[host]\nk=1\n"));
        Map expected = contentOf(path);
        const Map prefs = request("my list", false);
        expected["ActionName" + QString::number(number)] = "Initial View";
        expected["ActionPrefs" + QString::number(number)] = prefs;
        QCOMPARE(save(prefs), prefs);
        QCOMPARE(contentOf(path), expected);
    }

    void saysByTheMapWhatCannotBeWritten()
    {
        const Map prefs = request("folder", true);
        QVERIFY(QDir().mkpath(m_home.actionList("folder.xqq/filled")));
        QCOMPARE(save(prefs), prefs);
        QCOMPARE(save(request(QString(300, 'n'), true)), entryPrefs());
        QCOMPARE(sequenceFolder(), QStringList{"folder.xqq"});
    }

    void refusesNamesThatLeaveTheFolder()
    {
        for (const QString& name :
             {QString("../x"), QString("a/../../x"), QString("x") + QChar(0) + "y", QString("/../x")})
            for (const bool overwrite : {true, false}) {
                const Map prefs = request(name, overwrite);
                QCOMPARE(save(prefs), prefs);
            }
        QVERIFY(sequenceFolder().isEmpty());
        QVERIFY(!QFile::exists(CUtils::GetAppDataToolsFolder() + "x.xqq"));
    }

    void storesBelowTheFolder_data()
    {
        const Rows<QString, QString> row;
        row("a folder of its own", "Q1/Q 2", "Q1/Q_2.xqq");
        row("from the root", "/tmp/x", "tmp/x.xqq");
        row("up again", "a/../x", "x.xqq");
        row("a name of nothing", "x/", "x/.xqq");
    }

    void storesBelowTheFolder()
    {
        const auto [name, file] = Rows<QString, QString>::current();
        QCOMPARE(save(request(name, true)), entryPrefs());
        save(request(name, false));
        const Map content = contentOf(m_home.actionList(file));
        QCOMPARE(content.value("SequenceName").toString(), name);
        QVERIFY(content.contains("ActionName1"));
    }

    // As the host may add them: they are no reason to refuse the file.
    void keepsValuesOfAnyKind()
    {
        const QString path = m_home.actionList("list.xqq");
        save(request("list", true, "Kept"));
        {
            QSettings file(path, QSettings::IniFormat);
            file.setValue("g1/g2/k", QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
            file.beginWriteArray("files");
            file.setArrayIndex(0);
            file.setValue("path", QVariant::fromValue(QJsonObject{{"a", 1}}));
            file.endArray();
        }
        Map expected = contentOf(path);
        expected["ActionName1"] = "Initial View";
        expected["ActionPrefs1"] = request("list", false);
        save(request("list", false));
        QCOMPARE(contentOf(path), expected);
        QCOMPARE(CActionUtils::GetActionListCategories(), (QStringList{"Default", "Favorites", "Kept"}));
    }

    void listsNoCategoriesOfItsOwn()
    {
        const QStringList standard{"Default", "Favorites"};
        QCOMPARE(CActionUtils::GetActionListCategories(), standard);
        QVERIFY(QDir(CUtils::GetSequenceFolder()).removeRecursively());
        QCOMPARE(CActionUtils::GetActionListCategories(), standard);
    }

    void listsEachCategoryOnce()
    {
        const QByteArray head = "[General]\nSequenceCategory=";
        const QList<QPair<QString, QByteArray>> files{{"B.XQQ", head + "Reports\n"},
                                                      {"a.xqq", head + "Archive\n"},
                                                      {"c.xqq", head + "\n"},
                                                      {"d.xqq", head + "favorites\n"},
                                                      {"e.xqq", head + "reports\n"},
                                                      {"f.xqq", "no settings"},
                                                      {"g.xqq", "[General]\n"},
                                                      {"h.xqq", head + "\"a, b\"\n"},
                                                      {".i.xqq", head + "Hidden\n"},
                                                      {"j.ini", head + "Other\n"},
                                                      {"k.xqq", "[x]\nSequenceCategory=Group\n"}};
        for (const auto& [name, content] : files)
            QVERIFY(writeFile(m_home.actionList(name), content));
        QVERIFY(QDir().mkpath(m_home.actionList("folder.xqq")));
        QCOMPARE(mkfifo(QFile::encodeName(m_home.actionList("z.xqq")).constData(), 0600), 0);
        QVERIFY(QFile::link(m_home.actionList("z.xqq"), m_home.actionList("link.xqq")));
        QCOMPARE(CActionUtils::GetActionListCategories(),
                 (QStringList{"Default", "Favorites", "Archive", "Reports", "a, b"}));
    }

    void readsAndWritesTheStoredSample()
    {
        const QString sample = QString(TEST_DATA_DIR) + "/manuals.xqq";
        QCOMPARE(contentOf(sample), (Map{{"SequenceName", "Manuals"},
                                         {"SequenceCategory", "Reports"},
                                         {"IOSettings", "0"},
                                         {"ActionName0", "Initial View"},
                                         {"ActionPrefs0", entryPrefs()}}));
        save(request("Manuals", true, "Reports"));
        QCOMPARE(bytesOf(m_home.actionList("Manuals.xqq")), bytesOf(sample));
    }
};

QTEST_GUILESS_MAIN(TestActionLists)
#include "TestActionLists.moc"
