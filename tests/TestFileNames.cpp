#include "CActionUtils.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>

namespace {

/// A folder that is the current one while it lives, so that tests write relative names.
class WorkFolder
{
public:
    WorkFolder() { QDir::setCurrent(m_folder.path()); }
    ~WorkFolder() { QDir::setCurrent(m_before); }

    QString path() const { return QDir::currentPath(); }

    void make(const QString& file) const
    {
        QDir().mkpath(QFileInfo(file).path());
        QFile made(file);
        QVERIFY2(made.open(QIODevice::WriteOnly), qPrintable(file));
    }

    QStringList search(const QStringList& suffixes, bool recursive) const
    {
        QStringList found = CActionUtils::SearchFilesInDir(QDir("."), suffixes, recursive);
        for (QString& file : found)
            file = file.startsWith(path() + "/") ? file.mid(path().size() + 1) : "outside: " + file;
        return found;
    }

private:
    QString m_before = QDir::currentPath();
    QTemporaryDir m_folder;
};

} // namespace

class TestFileNames : public QObject
{
    Q_OBJECT

private slots:
    void searchesBySuffix()
    {
        const WorkFolder folder;
        for (const char* file : {"a.PDF", "b.pdf", "c.txt", "d.tar.pdf", "pdf", ".hidden.pdf", "b/1.pdf",
                                 "bb.pdf/inside.pdf", "bb.pdf/deep/er.Pdf", "z/none.txt", "e."})
            folder.make(file);
        QCOMPARE(folder.search({"pdf"}, false), (QStringList{"a.PDF", "b.pdf", "d.tar.pdf"}));
        QCOMPARE(folder.search({"pdf"}, true), (QStringList{"a.PDF", "b/1.pdf", "b.pdf", "bb.pdf/deep/er.Pdf",
                                                            "bb.pdf/inside.pdf", "d.tar.pdf"}));
        QCOMPARE(folder.search({"TXT", "tar"}, true), (QStringList{"c.txt", "z/none.txt"}));
        QCOMPARE(folder.search({""}, false), (QStringList{"e.", "pdf"}));
        QCOMPARE(folder.search({}, true), QStringList());
        QCOMPARE(CActionUtils::SearchFilesInDir(QDir("missing"), {"pdf"}, true), QStringList());
    }

    void skipsSymbolicLinks()
    {
        const WorkFolder folder;
        folder.make("sub/real.pdf");
        QVERIFY(QFile::link("real.pdf", "sub/link.pdf"));
        QVERIFY(QFile::link("..", "sub/up"));
        QVERIFY(QFile::link("nowhere", "sub/broken.pdf"));
        QCOMPARE(folder.search({"pdf"}, true), QStringList{"sub/real.pdf"});
    }

    void takesAnyName()
    {
        const WorkFolder folder;
        QStringList names{"sp ace.pdf",
                          "quo\"te'.pdf",
                          "line\nfeed.pdf",
                          QString(251, 'x') + ".pdf",
                          QString::fromUtf8("\xd0\xb4\xd0\xb0 \xe6\x97\xa5\xe6\x9c\xac.pdf"),
                          "%41 $HOME.pdf"};
        for (const QString& name : qAsConst(names))
            folder.make(name);
        QStringList found = folder.search({"pdf"}, false);
        found.sort();
        names.sort();
        QCOMPARE(found, names);
        folder.make("back\\slash.pdf");
        QVERIFY2(folder.search({"pdf"}, false).contains("back/slash.pdf"), "backslashes become slashes");
    }

    void followsDeepChains()
    {
        const WorkFolder folder;
        const QString chain = QString("d/").repeated((1000 - folder.path().size()) / 2);
        folder.make(chain + "end.pdf");
        QCOMPARE(folder.search({"pdf"}, true), QStringList{chain + "end.pdf"});
    }

    void padsWithZeros_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("text");
        QTest::newRow("shorter") << 7 << 3 << "007";
        QTest::newRow("longer") << 1234 << 3 << "1234";
        QTest::newRow("the sign counts") << -5 << 3 << "0-5";
        QTest::newRow("no length") << 5 << 0 << "5";
        QTest::newRow("negative length") << 5 << -3 << "5";
    }

    void padsWithZeros()
    {
        QFETCH(int, number);
        QFETCH(int, length);
        QTEST(CActionUtils::GetStringWithLeadingZeroesFromNumber(number, length), "text");
        QTEST(CActionUtils::GetStringWithLeadingZeroesFromString(QString::number(number), length), "text");
    }

    void numbersCopies_data()
    {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("copy");
        QTest::newRow("free") << QStringList{} << "report.pdf"
                              << "report.pdf";
        QTest::newRow("first") << QStringList{"report.pdf"} << "report.pdf"
                               << "report (1).pdf";
        QTest::newRow("next") << QStringList{"report.pdf", "report (1).pdf"} << "report.pdf"
                              << "report (2).pdf";
        QTest::newRow("gap") << QStringList{"report.pdf", "report (2).pdf"} << "report.pdf"
                             << "report (1).pdf";
        QTest::newRow("last dot") << QStringList{"a.tar.gz"} << "a.tar.gz"
                                  << "a.tar (1).gz";
        QTest::newRow("dot in front") << QStringList{".profile"} << ".profile"
                                      << " (1).profile";
        QTest::newRow("dot of the folder") << QStringList{"v1.2/name"} << "v1.2/name"
                                           << "v1 (1).2/name";
        QTest::newRow("no dot") << QStringList{"name"} << "name"
                                << "name (1)";
        QTest::newRow("no dot, next") << QStringList{"name", "name (1)"} << "name"
                                      << "name (2)";
        QTest::newRow("empty") << QStringList{} << ""
                               << "";
    }

    void numbersCopies()
    {
        QFETCH(QStringList, present);
        QFETCH(QString, path);
        const WorkFolder folder;
        for (const QString& file : qAsConst(present))
            folder.make(file);
        QTEST(CActionUtils::AppendCopyNumberToFilename(path), "copy");
    }

    void fixesFileNames_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fixed");
        QTest::newRow("all at once") << "  a:b/c?\t"
                                     << "abc";
        QTest::newRow("every forbidden character") << "0\t1\n2\r3<4>5:6\"7/8\\9|a?b*c"
                                                   << "0123456789abc";
        QTest::newRow("trimming comes first") << ": a :"
                                              << " a ";
        QTest::newRow("spaces inside stay") << " a  b "
                                            << "a  b";
        QTest::newRow("other characters stay") << "a.b'c;%\v"
                                               << "a.b'c;%";
        QTest::newRow("nothing left") << " ?*: "
                                      << "";
        QTest::newRow("letters of any script")
            << QString::fromUtf8("\xe6\x97\xa5:\xc3\xbc") << QString::fromUtf8("\xe6\x97\xa5\xc3\xbc");
    }

    void fixesFileNames()
    {
        QFETCH(QString, text);
        CActionUtils::FixStringForFilename(&text);
        QTEST(text, "fixed");
    }

    void expandsTheSharedFolder_data()
    {
        QTest::addColumn<QByteArray>("home");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expanded");
        const QByteArray home = "/home/ann";
        QTest::newRow("none") << home << "/tmp/%HOME%"
                              << "/tmp/%HOME%";
        QTest::newRow("another case") << home << "%AllUsersProfile%"
                                      << "%AllUsersProfile%";
        QTest::newRow("one") << home << "%ALLUSERSPROFILE%/x"
                             << "/home/All Users//x";
        QTest::newRow("two") << home << "%ALLUSERSPROFILE%;%ALLUSERSPROFILE%"
                             << "/home/All Users/;/home/All Users/";
        QTest::newRow("home at the top") << QByteArray("/root") << "%ALLUSERSPROFILE%"
                                         << "/All Users/";
        QTest::newRow("older layout") << QByteArray("/c/Documents and Settings/ann") << "%ALLUSERSPROFILE%a"
                                      << "/c/Documents and Settings/All Users/Application Data/a";
        QTest::newRow("backslashes") << QByteArray("/c\\home\\ann") << "%ALLUSERSPROFILE%"
                                     << "/c/home/All Users/";
    }

    void expandsTheSharedFolder()
    {
        QFETCH(QByteArray, home);
        QFETCH(QString, path);
        const QByteArray before = qgetenv("HOME");
        qputenv("HOME", home);
        const QString expanded = CActionUtils::ReplaceEnvironmentPaths(path);
        qputenv("HOME", before);
        QTEST(expanded, "expanded");
    }

    void rounds_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("rounded");
        QTest::newRow("half") << 0.5 << 0;
        QTest::newRow("half below zero") << -0.5 << -1;
        QTest::newRow("two and a half") << 2.5 << 2;
        QTest::newRow("above a half") << 2.51 << 3;
        QTest::newRow("minus two and a half") << -2.5 << -3;
        QTest::newRow("above minus two and a half") << -2.49 << -2;
        QTest::newRow("whole") << -3.0 << -3;
        QTest::newRow("just below a half") << 0.49999999999999994 << 0;
        QTest::newRow("near the largest") << INT_MAX - 0.25 << INT_MAX;
        QTest::newRow("beyond the largest") << 1e300 << INT_MAX;
        QTest::newRow("beyond the smallest") << -1e300 << INT_MIN;
        QTest::newRow("infinite") << HUGE_VAL << INT_MAX;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    }

    void rounds()
    {
        QFETCH(double, value);
        QTEST(CActionUtils::Round(value), "rounded");
    }

    void needsNoTargets()
    {
        QVERIFY(CActionUtils::mNavBarLabel == nullptr && CActionUtils::mInfoLabel == nullptr);
        const auto showAll = [] {
            CActionUtils::SetCurrentSection("section");
            CActionUtils::SetHelpHtml("help");
            CActionUtils::SetHelp("missing.html");
        };
        showAll();
        {
            QLabel label;
            QTextEdit info;
            CActionUtils::SetTargetLabels(&label, &info);
        }
        showAll();
        CActionUtils::SetTargetLabels(nullptr, nullptr);
        showAll();
    }

    void showsHelp()
    {
        QLabel label;
        QTextEdit info;
        CActionUtils::SetTargetLabels(&label, &info);
        QCOMPARE(CActionUtils::mNavBarLabel, &label);
        QCOMPARE(CActionUtils::mInfoLabel, &info);

        CActionUtils::SetCurrentSection("Page order");
        QCOMPARE(label.text(), QString("Page order"));
        CActionUtils::SetHelpHtml("a <b>bold</b> word");
        QCOMPARE(info.toPlainText(), QString("a bold word"));
        CActionUtils::SetHelp("utf8.html");
        QCOMPARE(info.toPlainText(), QString::fromUtf8("gr\xc3\xbc\xc3\x9f"
                                                       "e"));
        CActionUtils::SetHelp("undeclared.html");
        QCOMPARE(info.toPlainText(), QString::fromUtf8("gr\xc3\xbc\xc3\x9f"
                                                       "e"));
        CActionUtils::SetHelp("missing.html");
        QCOMPARE(info.toPlainText(), QString());
        CActionUtils::SetTargetLabels(nullptr, nullptr);
    }

    void findsToolIcons()
    {
        QCOMPARE(CActionUtils::GetIconForTool("tool.png").pixmap(3, 2).toImage().pixelColor(1, 1),
                 QColor(Qt::red));
        QVERIFY(CActionUtils::GetIconForTool("missing.png").pixmap(16, 16).isNull());
    }
};

QTEST_MAIN(TestFileNames)
#include "TestFileNames.moc"
