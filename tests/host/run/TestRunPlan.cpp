#include "host/run/RunPlan.h"
#include "support/Rows.h"
#include "support/UsageErrors.h"
#include "support/WorkFolder.h"

#include <QtTest>

#include <optional>

#include <sys/stat.h>
#include <unistd.h>

using namespace host;
namespace fs = std::filesystem;

class TestRunPlan : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }
    void cleanup() { m_folder.reset(); }

    void findsWhatAFolderHolds()
    {
        for (const char* name :
             {"in/b.pdf", "in/a.PDF", "in/a/z.Pdf", "in/c.pdf.txt", "in/pdf", "in/.hidden.pdf",
              "in/.hidden/x.pdf", "in/x\xff\n.pdf", "in/deep/er/y.pdf", "outside.pdf"})
            WorkFolder::put(name);
        fs::create_directories("in/folder.pdf");
        fs::create_directory_symlink("..", "in/loop");
        fs::create_symlink("../outside.pdf", "in/link.pdf");
        QCOMPARE(mkfifo("in/fifo.pdf", 0600), 0);
        RunPlan plan("out");
        plan.add("in//");
        QCOMPARE(targets(plan),
                 std::string("in/a/z.Pdf>out/a/z.Pdf in/a.PDF>out/a.PDF in/b.pdf>out/b.pdf "
                             "in/deep/er/y.pdf>out/deep/er/y.pdf in/x\xff\n.pdf>out/x\xff\n.pdf "));
        QVERIFY(refusalFor(plan).empty());
        plan.add("in/folder.pdf");
        QCOMPARE(plan.emptyFolders(), std::vector<std::string>{"in/folder.pdf"});

        const fs::path here = fs::current_path();
        const std::string name(250, 'd');
        for (int depth = 0; depth < 20; ++depth) {
            fs::create_directory(name);
            fs::current_path(name);
        }
        fs::current_path(here);
        RunPlan tooLong("out");
        tooLong.add(name);
        QCOMPARE(tooLong.documents().size(), std::size_t(1));
        QCOMPARE(tooLong.documents()[0].problem, std::string("file name too long"));
    }

    void leavesOutTheOutputFolder()
    {
        WorkFolder::put("in/a.pdf");
        WorkFolder::put("in/out/a.pdf");
        RunPlan plan("in/out");
        plan.add("in");
        QCOMPARE(targets(plan), std::string("in/a.pdf>in/out/a.pdf "));
        RunPlan onItself("in");
        onItself.add("in");
        QVERIFY(refusalFor(onItself).find("would overwrite") != std::string::npos);
    }

    void placesOutputs()
    {
        WorkFolder::put("d/one.pdf");
        WorkFolder::put("two");
        RunPlan plan("new/er/out/");
        plan.add("d/one.pdf");
        plan.add("./two");
        QCOMPARE(targets(plan), std::string("d/one.pdf>new/er/out/one.pdf ./two>new/er/out/two "));
        WorkFolder::put("d/deep/x\xff.pdf");
        RunPlan below("out", "./d/");
        for (const std::string& name :
             {std::string("d/one.pdf"), fs::absolute("d/deep").string() + "/../deep"})
            below.add(name);
        QCOMPARE(below.documents()[0].target, fs::canonical(".").string() + "/out/one.pdf");
        QCOMPARE(below.documents()[1].target, fs::canonical(".").string() + "/out/deep/x\xff.pdf");
        below.add("d/missing.pdf");
        QVERIFY_EXCEPTION_THROWN(below.add("two"), UsageError);
        QVERIFY_EXCEPTION_THROWN(RunPlan("out", "two").add("two"), UsageError);
        RunPlan inPlace("");
        inPlace.add("d/../d/one.pdf");
        QCOMPARE(targets(inPlace), std::string("d/../d/one.pdf>d/one.pdf "));
    }

    void namesWhatCannotBeWorkedOn()
    {
        QCOMPARE(mkfifo("fifo.pdf", 0600), 0);
        fs::create_symlink("nowhere", "broken.pdf");
        WorkFolder::put("file");
        RunPlan plan("out");
        for (const std::string& name :
             {std::string("missing.pdf"), std::string("fifo.pdf"), std::string("broken.pdf"),
              std::string("file/x.pdf"), std::string(5000, 'x')})
            plan.add(name);
        QStringList problems;
        for (const RunPlan::Document& document : plan.documents())
            problems += QString::fromStdString(document.problem);
        QCOMPARE(problems,
                 (QStringList{"no such file or directory", "not a regular file", "no such file or directory",
                              "not a directory", "file name too long"}));
        QVERIFY(refusalFor(plan).empty());
        QVERIFY_EXCEPTION_THROWN(plan.add(""), UsageError);
    }

    void refusesSharedOutputs_data()
    {
        const Rows<QString, QStringList, bool> row;
        row("same name in two folders", "out", {"a/x.pdf", "b/x.pdf"}, true);
        row("twice the same", "out", {"a/x.pdf", "./a/x.pdf"}, true);
        row("two folders", "out", {"a", "b"}, true);
        row("folder and its own document, in place", "", {"a", "a/x.pdf"}, true);
        row("link and its target, in place", "", {"a/x.pdf", "link.pdf"}, true);
        row("linked folder, in place", "", {"a/x.pdf", "linked/x.pdf"}, true);
        row("outputs that are linked", "linkedout", {"a/p.pdf", "a/q.pdf"}, true);
        row("hard links, in place", "", {"a/x.pdf", "hard.pdf"}, false);
        row("in place", "", {"a", "b"}, false);
        row("the missing collide with nothing", "out", {"no/x.pdf", "a/x.pdf"}, false);
    }

    void refusesSharedOutputs()
    {
        const auto [output, inputs, refused] = Rows<QString, QStringList, bool>::current();
        for (const char* name : {"a/x.pdf", "a/p.pdf", "a/q.pdf", "b/x.pdf", "linkedout/p.pdf"})
            WorkFolder::put(name);
        fs::create_symlink("a/x.pdf", "link.pdf");
        fs::create_directory_symlink("a", "linked");
        fs::create_hard_link("a/x.pdf", "hard.pdf");
        fs::create_symlink("p.pdf", "linkedout/q.pdf");
        RunPlan plan(output.toStdString());
        for (const QString& input : inputs)
            plan.add(input.toStdString());
        QCOMPARE(refusalFor(plan).find("would have the same output") != std::string::npos, refused);
    }

    void refusesToOverwriteADocument()
    {
        WorkFolder::put("a/x.pdf");
        WorkFolder::put("b/y.pdf");
        fs::create_directory_symlink("a", "linked");
        fs::create_directories("out");
        const auto refused = [](const char* output, std::initializer_list<const char*> inputs) {
            RunPlan plan(output);
            for (const char* input : inputs)
                plan.add(input);
            return refusalFor(plan).find("would overwrite") != std::string::npos;
        };
        QVERIFY(refused("a", {"a/x.pdf"}));
        QVERIFY(refused("linked", {"a/x.pdf"}));
        QVERIFY(!refused("out", {"a/x.pdf", "b/y.pdf"}));
        fs::create_hard_link("a/x.pdf", "out/y.pdf");
        QVERIFY(refused("out", {"a/x.pdf", "b/y.pdf"}));
        RunPlan plan("out");
        plan.add("a/x.pdf");
        QVERIFY_EXCEPTION_THROWN(plan.checkReport("linked/x.pdf", {}), UsageError);
        QVERIFY_EXCEPTION_THROWN(plan.checkReport("out/x.pdf", {}), UsageError);
        WorkFolder::put("settings");
        QVERIFY_EXCEPTION_THROWN(plan.checkReport("linked/../settings", {"settings"}), UsageError);
        plan.checkReport("report.jsonl", {"settings"});
    }

    // The folder is made only when nothing is refused.
    void guardsResultsInAFolderThatIsMissingYet()
    {
        WorkFolder::put("a/x.pdf");
        fs::create_symlink("new/x.pdf", "linked");
        for (const char* output : {"new", "new/", "other/../new/."}) {
            RunPlan plan(output);
            plan.add("a/x.pdf");
            QCOMPARE(targets(plan), std::string("a/x.pdf>new/x.pdf "));
            for (const char* report : {"new/../new/x.pdf", "new//x.pdf", "./new/./x.pdf", "linked"})
                QVERIFY_EXCEPTION_THROWN(plan.checkReport(report, {}), UsageError);
        }
    }

    void followsLinksInPlace()
    {
        WorkFolder::put("real/x.pdf");
        fs::create_symlink("real/x.pdf", "one.pdf");
        fs::create_symlink("one.pdf", "two.pdf");
        RunPlan plan("");
        plan.add("two.pdf");
        QCOMPARE(targets(plan), std::string("two.pdf>real/x.pdf "));
    }

    void followsLinksThatLeadNowhereYet()
    {
        WorkFolder::put("a/x.pdf");
        fs::create_directory("out");
        fs::create_symlink("../new/y.pdf", "out/x.pdf");
        RunPlan plan("out");
        plan.add("a/x.pdf");
        QCOMPARE(targets(plan), std::string("a/x.pdf>new/y.pdf "));
    }

private:
    static std::string refusalFor(const RunPlan& plan)
    {
        return refusalOf([&plan] { plan.checkTargets(); });
    }

    /// "name>target" of each document, targets relative to the current folder.
    static std::string targets(const RunPlan& plan)
    {
        const std::string here = fs::canonical(".").string() + "/";
        std::string text;
        for (const RunPlan::Document& document : plan.documents()) {
            const std::string target = document.problem.empty() ? document.target : "!" + document.problem;
            text +=
                document.name + ">" + (target.find(here) == 0 ? target.substr(here.size()) : target) + " ";
        }
        return text;
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestRunPlan)
#include "TestRunPlan.moc"
