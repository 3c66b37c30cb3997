#include "CActionUtils.h"
#include "support/Rows.h"

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
        const Rows<int, int, QString> row;
        row("shorter", 7, 3, "007");
        row("longer", 1234, 3, "1234");
        row("the sign counts", -5, 3, "0-5");
        row("no length", 5, 0, "5");
        row("negative length", 5, -3, "5");
    }

    void padsWithZeros()
    {
        const auto [number, length, text] = Rows<int, int, QString>::current();
        QCOMPARE(CActionUtils::GetStringWithLeadingZeroesFromNumber(number, length), text);
        QCOMPARE(CActionUtils::GetStringWithLeadingZeroesFromString(QString::number(number), length), text);
    }

    void numbersCopies_data()
    {
        const Rows<QStringList, QString, QString> row;
        row("free", {}, "report.pdf", "report.pdf");
        row("first", {"report.pdf"}, "report.pdf", "report (1).pdf");
        row("next", {"report.pdf", "report (1).pdf"}, "report.pdf", "report (2).pdf");
        row("gap", {"report.pdf", "report (2).pdf"}, "report.pdf", "report (1).pdf");
        row("last dot", {"a.tar.gz"}, "a.tar.gz", "a.tar (1).gz");
        row("dot in front", {".profile"}, ".profile", " (1).profile");
        row("dot of the folder", {"v1.2/name"}, "v1.2/name", "v1 (1).2/name");
        row("no dot", {"name"}, "name", "name (1)");
        row("empty", {}, "", "");
    }

    void numbersCopies()
    {
        const auto [present, path, copy] = Rows<QStringList, QString, QString>::current();
        const WorkFolder folder;
        for (const QString& file : qAsConst(present))
            folder.make(file);
        QCOMPARE(CActionUtils::AppendCopyNumberToFilename(path), copy);
    }

    void fixesFileNames_data()
    {
        const Rows<QString, QString> row;
        row("all at once", "  a:b/c?\t", "abc");
        row("every forbidden character", "0\t1\n2\r3<4>5:6\"7/8\\9|a?b*c", "0123456789abc");
        row("trimming comes first", ": a :", " a ");
        row("other characters stay", "a.b'c;%\v", "a.b'c;%");
        row("nothing left", " ?*: ", "");
        row("letters of any script", QString::fromUtf8("\xe6\x97\xa5:\xc3\xbc"),
            QString::fromUtf8("\xe6\x97\xa5\xc3\xbc"));
    }

    void fixesFileNames()
    {
        auto [text, fixed] = Rows<QString, QString>::current();
        CActionUtils::FixStringForFilename(&text);
        QCOMPARE(text, fixed);
    }

    void expandsTheSharedFolder_data()
    {
        const Rows<QByteArray, QString, QString> row;
        const QByteArray home = "/home/ann";
        row("none", home, "/tmp/%HOME%", "/tmp/%HOME%");
        row("another case", home, "%AllUsersProfile%", "%AllUsersProfile%");
        row("one", home, "%ALLUSERSPROFILE%/x", "/home/All Users//x");
        row("two", home, "%ALLUSERSPROFILE%;%ALLUSERSPROFILE%", "/home/All Users/;/home/All Users/");
        row("older layout", "/c/Documents and Settings/ann", "%ALLUSERSPROFILE%a",
            "/c/Documents and Settings/All Users/Application Data/a");
        row("backslashes", "/c\\home\\ann", "%ALLUSERSPROFILE%", "/c/home/All Users/");
    }

    void expandsTheSharedFolder()
    {
        const auto [home, path, expected] = Rows<QByteArray, QString, QString>::current();
        const QByteArray before = qgetenv("HOME");
        qputenv("HOME", home);
        const QString expanded = CActionUtils::ReplaceEnvironmentPaths(path);
        qputenv("HOME", before);
        QCOMPARE(expanded, expected);
    }

    void rounds_data()
    {
        const Rows<double, int> row;
        row("half", 0.5, 0);
        row("half below zero", -0.5, -1);
        row("two and a half", 2.5, 2);
        row("above a half", 2.51, 3);
        row("minus two and a half", -2.5, -3);
        row("above minus two and a half", -2.49, -2);
        row("whole", -3.0, -3);
        row("just below a half", 0.49999999999999994, 0);
        row("near the largest", INT_MAX - 0.25, INT_MAX);
        row("beyond the largest", 1e300, INT_MAX);
        row("beyond the smallest", -1e300, INT_MIN);
        row("infinite", HUGE_VAL, INT_MAX);
        row("not a number", std::numeric_limits<double>::quiet_NaN(), 0);
    }

    void rounds()
    {
        const auto [value, rounded] = Rows<double, int>::current();
        QCOMPARE(CActionUtils::Round(value), rounded);
    }

    void needsNoTargets()
    {
        {
            QLabel label;
            QTextEdit info;
            CActionUtils::SetTargetLabels(&label, &info);
        }
        for (int round = 0; round < 2; ++round) {
            CActionUtils::SetCurrentSection("section");
            CActionUtils::SetHelpHtml("help");
            CActionUtils::SetHelp("missing.html");
            CActionUtils::SetTargetLabels(nullptr, nullptr);
        }
    }

    void showsHelp()
    {
        QLabel label;
        QTextEdit info;
        CActionUtils::SetTargetLabels(&label, &info);
        CActionUtils::SetCurrentSection("Page order");
        QCOMPARE(label.text(), QString("Page order"));
        CActionUtils::SetHelpHtml("a <b>bold</b> word");
        QCOMPARE(info.toPlainText(), QString("a bold word"));
        for (const char* page : {"utf8.html", "undeclared.html"}) {
            CActionUtils::SetHelp(page);
            QCOMPARE(info.toPlainText(), QString(QChar(0xfc)).prepend("gr").append(QChar(0xdf)) + "e");
        }
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
