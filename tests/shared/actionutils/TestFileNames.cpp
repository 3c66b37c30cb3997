#include "CActionUtils.h"
#include "support/Rows.h"
#include "support/folders/WorkFolder.h"

#include <QLabel>
#include <QTextEdit>
#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>

namespace {

QStringList search(const QStringList& suffixes, bool recursive)
{
    QStringList found = CActionUtils::SearchFilesInDir(QDir("."), suffixes, recursive);
    const QString here = QDir::currentPath() + "/";
    for (QString& file : found)
        file = file.startsWith(here) ? file.mid(here.size()) : "outside: " + file;
    return found;
}

void make(const QString& file)
{
    WorkFolder::put(file.toStdString());
}

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
            make(file);
        QCOMPARE(search({"pdf"}, false), (QStringList{"a.PDF", "b.pdf", "d.tar.pdf"}));
        QCOMPARE(search({"pdf"}, true), (QStringList{"a.PDF", "b/1.pdf", "b.pdf", "bb.pdf/deep/er.Pdf",
                                                     "bb.pdf/inside.pdf", "d.tar.pdf"}));
        QCOMPARE(search({"TXT", "tar"}, true), (QStringList{"c.txt", "z/none.txt"}));
        QCOMPARE(search({""}, false), (QStringList{"e.", "pdf"}));
        QCOMPARE(search({}, true), QStringList());
        QCOMPARE(CActionUtils::SearchFilesInDir(QDir("missing"), {"pdf"}, true), QStringList());
    }

    void skipsSymbolicLinks()
    {
        const WorkFolder folder;
        make("sub/real.pdf");
        QVERIFY(QFile::link("real.pdf", "sub/link.pdf"));
        QVERIFY(QFile::link("..", "sub/up"));
        QVERIFY(QFile::link("nowhere", "sub/broken.pdf"));
        QCOMPARE(search({"pdf"}, true), QStringList{"sub/real.pdf"});
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
            make(name);
        QStringList found = search({"pdf"}, false);
        found.sort();
        names.sort();
        QCOMPARE(found, names);
        make("back\\slash.pdf");
        QVERIFY2(search({"pdf"}, false).contains("back/slash.pdf"), "backslashes become slashes");
    }

    void followsDeepChains()
    {
        const WorkFolder folder;
        const QString chain = QString("d/").repeated((1000 - folder.path().size()) / 2);
        make(chain + "end.pdf");
        QCOMPARE(search({"pdf"}, true), QStringList{chain + "end.pdf"});
    }

    void padsWithZeros()
    {
        const std::tuple<int, int, QString> padded[] = {
            {7, 3, "007"}, {1234, 3, "1234"}, {-5, 3, "0-5"}, {5, 0, "5"}, {5, -3, "5"}};
        for (const auto& [number, length, text] : padded) {
            QCOMPARE(CActionUtils::GetStringWithLeadingZeroesFromNumber(number, length), text);
            QCOMPARE(CActionUtils::GetStringWithLeadingZeroesFromString(QString::number(number), length),
                     text);
        }
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
            make(file);
        QCOMPARE(CActionUtils::AppendCopyNumberToFilename(path), copy);
    }

    void fixesFileNames()
    {
        for (auto [text, fixed] : {std::pair<QString, QString>{"  a:b/c?\t", "abc"},
                                   {"0\t1\n2\r3<4>5:6\"7/8\\9|a?b*c", "0123456789abc"},
                                   {": a :", " a "}, // trimming comes first
                                   {"a.b'c;%\v", "a.b'c;%"},
                                   {" ?*: ", ""}}) {
            CActionUtils::FixStringForFilename(&text);
            QCOMPARE(text, fixed);
        }
    }

    void expandsTheSharedFolder_data()
    {
        const Rows<QByteArray, QString, QString> row;
        const QByteArray home = "/home/ann";
        row("none", home, "/tmp/%HOME%", "/tmp/%HOME%");
        row("one", home, "%ALLUSERSPROFILE%/x", "/home/All Users//x");
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

    void rounds()
    {
        const std::pair<double, int> rounded[] = {{0.5, 0},
                                                  {-0.5, -1},
                                                  {2.5, 2},
                                                  {2.51, 3},
                                                  {-2.5, -3},
                                                  {-2.49, -2},
                                                  {-3.0, -3},
                                                  {0.49999999999999994, 0},
                                                  {INT_MAX - 0.25, INT_MAX},
                                                  {1e300, INT_MAX},
                                                  {-1e300, INT_MIN},
                                                  {HUGE_VAL, INT_MAX},
                                                  {std::nan(""), 0}};
        for (const auto& [value, result] : rounded)
            QCOMPARE(CActionUtils::Round(value), result);
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
        CActionUtils::SetCurrentSection("section"); // shown nowhere
        CActionUtils::SetHelpHtml("help");
        QCOMPARE(label.text(), QString("Page order"));
        CActionUtils::mNavBarLabel = &label;
        CActionUtils::SetCurrentSection("Margins");
        QCOMPARE(label.text(), QString("Margins"));
        CActionUtils::SetTargetLabels(std::make_unique<QLabel>().get(), nullptr);
        CActionUtils::SetCurrentSection("shown by a widget that is gone");
        QCOMPARE(CActionUtils::GetIconForTool("tool.png").pixmap(3, 2).toImage().pixelColor(1, 1),
                 QColor(Qt::red));
        QVERIFY(CActionUtils::GetIconForTool("missing.png").pixmap(16, 16).isNull());
    }
};

QTEST_MAIN(TestFileNames)
#include "TestFileNames.moc"
