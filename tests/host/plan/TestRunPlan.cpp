#include "host/plan/RunPlan.h"
#include "support/Rows.h"
#include "support/folders/WorkFolder.h"
#include "support/program/UsageErrors.h"

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
        RunPlan plan(to("out"));
        plan.add("in//");
        QCOMPARE(targets(plan),
                 std::string("in/a/z.Pdf>out/a/z.Pdf in/a.PDF>out/a.PDF in/b.pdf>out/b.pdf "
                             "in/deep/er/y.pdf>out/deep/er/y.pdf in/x\xff\n.pdf>out/x\xff\n.pdf "));
        QVERIFY(refusalFor(plan).empty());
        plan.add("in/folder.pdf");
        QCOMPARE(plan.notes(), std::vector<std::string>{"no PDF documents in in/folder.pdf"});
        plan.add("in", RunPlan::Folders::Refused);
        QCOMPARE(plan.documents().back().problem.code, ReasonCode::NotAFile);

        const fs::path here = fs::current_path();
        const std::string name(250, 'd');
        for (int depth = 0; depth < 20; ++depth) {
            fs::create_directory(name);
            fs::current_path(name);
        }
        fs::current_path(here);
        RunPlan tooLong(to("out"));
        tooLong.add(name);
        QCOMPARE(tooLong.documents().size(), std::size_t(1));
        QCOMPARE(tooLong.documents()[0].problem.text, std::string("file name too long"));
    }

    void leavesOutTheOutputFolder()
    {
        WorkFolder::put("in/a.pdf");
        WorkFolder::put("in/out/a.pdf");
        RunPlan plan(to("in/out"));
        plan.add("in");
        QCOMPARE(targets(plan), std::string("in/a.pdf>in/out/a.pdf "));
        RunPlan onItself(to("in"));
        onItself.add("in");
        QVERIFY(refusalFor(onItself).find("would overwrite") != std::string::npos);
    }

    void placesOutputs()
    {
        WorkFolder::put("d/one.pdf");
        WorkFolder::put("two");
        RunPlan plan(to("new/er/out/"));
        plan.add("d/one.pdf");
        plan.add("./two");
        QCOMPARE(targets(plan), std::string("d/one.pdf>new/er/out/one.pdf ./two>new/er/out/two "));
        WorkFolder::put("d/deep/x\xff.pdf");
        RunPlan below(RunDestination::folder("out", "./d/"));
        for (const std::string& name :
             {std::string("d/one.pdf"), fs::absolute("d/deep").string() + "/../deep"})
            below.add(name);
        QCOMPARE(below.documents()[0].target, fs::canonical(".").string() + "/out/one.pdf");
        QCOMPARE(below.documents()[1].target, fs::canonical(".").string() + "/out/deep/x\xff.pdf");
        below.add("d/missing.pdf");
        QVERIFY_EXCEPTION_THROWN(below.add("two"), UsageError);
        QVERIFY_EXCEPTION_THROWN(RunPlan(RunDestination::folder("out", "two")).add("two"), UsageError);
        RunPlan inPlace(to(""));
        inPlace.add("d/../d/one.pdf");
        QCOMPARE(targets(inPlace), std::string("d/../d/one.pdf>d/one.pdf "));
    }

    // A name says what it means, unless there is something by that name.
    void tellsFileFromFolder()
    {
        WorkFolder::put("in/x.pdf");
        WorkFolder::put("old.pdf");
        WorkFolder::put("file");
        fs::create_directories("folder.pdf");
        const auto place = [](const std::string& output, const std::string& base = {}) {
            std::string text;
            const std::string refusal = refusalOf([&] {
                RunPlan plan(RunDestination::named(output, base));
                plan.add("in/x.pdf");
                text = targets(plan);
            });
            return text + refusal;
        };
        QCOMPARE(place("new/y.PDF"), std::string("in/x.pdf>new/y.PDF "));
        QCOMPARE(place("old.pdf"), std::string("in/x.pdf>old.pdf "));
        QCOMPARE(place("folder.pdf"), std::string("in/x.pdf>folder.pdf/x.pdf "));
        QCOMPARE(place("new.pdf/"), std::string("in/x.pdf>new.pdf/x.pdf "));
        QCOMPARE(place(".pdf"), std::string("in/x.pdf>.pdf/x.pdf "));
        QCOMPARE(place("-"), std::string("in/x.pdf>- "));
        QCOMPARE(place("file"), std::string("file is not a folder; a result's own name ends in .pdf"));
        QCOMPARE(place(""), std::string("-o needs the name of a folder or of a PDF file"));
        QCOMPARE(place("new.pdf", "in"),
                 std::string("--base goes with a folder for the results, not with -o new.pdf"));
        QCOMPARE(mkfifo("fifo.pdf", 0600), 0);
        QCOMPARE(place("fifo.pdf"), std::string("fifo.pdf is not a regular file"));
        RunPlan two(RunDestination::named("new.pdf", {}));
        two.add("in");
        QCOMPARE(refusalFor(two), std::string());
        two.add("old.pdf");
        QCOMPARE(refusalFor(two),
                 std::string("-o new.pdf takes one document, not 2; name a folder for the results"));
        RunPlan onItself(RunDestination::named("in/../in/x.pdf", {}));
        onItself.add("in/x.pdf");
        QVERIFY(refusalFor(onItself).find("would overwrite") != std::string::npos);
    }

    void takesStandardInputForOneResult()
    {
        const auto place = [](const RunDestination& destination) {
            RunPlan plan(destination);
            const std::string refusal = refusalOf([&] { plan.addStandardInput(); });
            return refusal + targets(plan);
        };
        QCOMPARE(place(RunDestination::file("-")), std::string("->- "));
        QCOMPARE(place(RunDestination::file("new.pdf")), std::string("->new.pdf "));
        for (const RunDestination& several :
             {RunDestination::inPlace(), RunDestination::folder("out"), RunDestination::beside("x")})
            QCOMPARE(place(several),
                     std::string("a document from standard input goes to -o FILE.pdf or -o -"));
    }

    void placesResultsBesideTheirDocuments()
    {
        for (const char* name : {"in/a.pdf", "in/a-web.pdf", "in/b-web.PDF", "in/-web.pdf", "in/d/c.PDF",
                                 "in/d/c-web.PDF", "in/plain"})
            WorkFolder::put(name);
        RunPlan plan(RunDestination::beside("web"));
        plan.add("in");
        plan.add("in/plain");
        QCOMPARE(targets(plan), std::string("in/-web.pdf>in/-web-web.pdf in/a.pdf>in/a-web.pdf "
                                            "in/b-web.PDF>in/b-web-web.PDF in/d/c.PDF>in/d/c-web.PDF "
                                            "in/plain>in/plain-web "));
        QCOMPARE(refusalFor(plan), std::string());
        plan.add("in/a-web.pdf"); // by itself it is a document
        QCOMPARE(refusalFor(plan),
                 std::string("the output of in/a.pdf would overwrite the document in/a-web.pdf"));
        for (const std::string& suffix : {std::string(), std::string("a/b"), std::string("a\0b", 3)})
            QVERIFY_EXCEPTION_THROWN(RunDestination::beside(suffix), UsageError);
    }

    void namesWhatCannotBeWorkedOn()
    {
        QCOMPARE(mkfifo("fifo.pdf", 0600), 0);
        fs::create_symlink("nowhere", "broken.pdf");
        WorkFolder::put("file");
        RunPlan plan(to("out"));
        for (const std::string& name :
             {std::string("missing.pdf"), std::string("fifo.pdf"), std::string("broken.pdf"),
              std::string("file/x.pdf"), std::string(5000, 'x'), std::string("./brokn")})
            plan.add(name);
        QStringList problems;
        for (const RunPlan::Document& document : plan.documents())
            problems += QString::fromStdString(document.problem.text);
        QCOMPARE(problems, (QStringList{"no such file or directory", "not a regular file",
                                        "no such file or directory", "not a directory", "file name too long",
                                        "no such file or directory; did you mean \"./broken.pdf\"?"}));
        QVERIFY(refusalFor(plan).empty());
        QVERIFY_EXCEPTION_THROWN(plan.add(""), UsageError);
    }

    void refusesSharedOutputs_data()
    {
        const Rows<QString, QStringList, std::string> row;
        const std::string same = "would have the same output";
        row("same name in two folders", "out", {"a/x.pdf", "b/x.pdf"}, same);
        row("twice the same", "out", {"a/x.pdf", "./a/x.pdf"}, same);
        row("two folders", "out", {"a", "b"}, same);
        row("folder and its own document, in place", "", {"a", "a/x.pdf"}, "a/x.pdf is named twice");
        row("link and its target, in place", "", {"a/x.pdf", "link.pdf"}, same);
        row("linked folder, in place", "", {"a/x.pdf", "linked/x.pdf"}, same);
        row("outputs that are linked", "linkedout", {"a/p.pdf", "a/q.pdf"}, same);
        row("hard links, in place", "", {"a/x.pdf", "hard.pdf"}, "");
        row("in place", "", {"a", "b"}, "");
        row("names that differ in case, which counts here", "out", {"a/x.pdf", "b/X.pdf"}, "");
        row("the missing collide with nothing", "out", {"no/x.pdf", "a/x.pdf"}, "");
    }

    void refusesSharedOutputs()
    {
        const auto [output, inputs, refused] = Rows<QString, QStringList, std::string>::current();
        for (const char* name : {"a/x.pdf", "a/p.pdf", "a/q.pdf", "b/x.pdf", "b/X.pdf", "linkedout/p.pdf"})
            WorkFolder::put(name);
        fs::create_symlink("a/x.pdf", "link.pdf");
        fs::create_directory_symlink("a", "linked");
        fs::create_hard_link("a/x.pdf", "hard.pdf");
        fs::create_symlink("p.pdf", "linkedout/q.pdf");
        RunPlan plan(to(output.toStdString()));
        for (const QString& input : inputs)
            plan.add(input.toStdString());
        const std::string refusal = refusalFor(plan);
        QVERIFY2(refused.empty() ? refusal.empty() : refusal.find(refused) != std::string::npos,
                 refusal.c_str());
    }

    void refusesToOverwriteADocument()
    {
        WorkFolder::put("a/x.pdf");
        WorkFolder::put("b/y.pdf");
        fs::create_directory_symlink("a", "linked");
        fs::create_directories("out");
        const auto refused = [](const char* output, std::initializer_list<const char*> inputs) {
            RunPlan plan(to(output));
            for (const char* input : inputs)
                plan.add(input);
            return refusalFor(plan).find("would overwrite") != std::string::npos;
        };
        QVERIFY(refused("a", {"a/x.pdf"}));
        QVERIFY(refused("linked", {"a/x.pdf"}));
        QVERIFY(!refused("out", {"a/x.pdf", "b/y.pdf"}));
        fs::create_hard_link("a/x.pdf", "out/y.pdf");
        QVERIFY(refused("out", {"a/x.pdf", "b/y.pdf"}));
        RunPlan plan(to("out"));
        plan.add("a/x.pdf");
        QVERIFY_EXCEPTION_THROWN(plan.checkReport("linked/x.pdf", {}), UsageError);
        QVERIFY_EXCEPTION_THROWN(plan.checkReport("out/x.pdf", {}), UsageError);
        WorkFolder::put("settings");
        QVERIFY_EXCEPTION_THROWN(plan.checkReport("linked/../settings", {"settings"}), UsageError);
        plan.checkReport("report.jsonl", {"settings"});
        WorkFolder::put("out/x.pdf"); // the model of this run, say
        RunPlan again(to("out"));
        again.add("a/x.pdf");
        QVERIFY_EXCEPTION_THROWN(again.checkTargets({"linked/../out/x.pdf"}), UsageError);
        again.checkTargets({"settings"});
    }

    // The folder is made only when nothing is refused.
    void guardsResultsInAFolderThatIsMissingYet()
    {
        WorkFolder::put("a/x.pdf");
        fs::create_symlink("new/x.pdf", "linked");
        for (const char* output : {"new", "new/", "other/../new/."}) {
            RunPlan plan(to(output));
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
        RunPlan plan(to(""));
        plan.add("two.pdf");
        QCOMPARE(targets(plan), std::string("two.pdf>real/x.pdf "));
    }

    void followsLinksThatLeadNowhereYet()
    {
        WorkFolder::put("a/x.pdf");
        fs::create_directory("out");
        fs::create_symlink("../new/y.pdf", "out/x.pdf");
        RunPlan plan(to("out"));
        plan.add("a/x.pdf");
        QCOMPARE(targets(plan), std::string("a/x.pdf>new/y.pdf "));
    }

private:
    /// A folder for the results, or "" for in place.
    static RunDestination to(const std::string& folder)
    {
        return folder.empty() ? RunDestination::inPlace() : RunDestination::folder(folder);
    }

    static std::string refusalFor(const RunPlan& plan)
    {
        return refusalOf([&plan] {
            plan.checkTargets();
            plan.checkCase();
        });
    }

    /// "name>target" of each document, targets relative to the current folder.
    static std::string targets(const RunPlan& plan)
    {
        const std::string here = fs::canonical(".").string() + "/";
        std::string text;
        for (const RunPlan::Document& document : plan.documents()) {
            const std::string target = document.problem ? "!" + document.problem.text : document.target;
            text +=
                document.name + ">" + (target.find(here) == 0 ? target.substr(here.size()) : target) + " ";
        }
        return text;
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestRunPlan)
#include "TestRunPlan.moc"
