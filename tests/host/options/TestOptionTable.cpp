// Everything that tells about options has to tell about all of them.
#include "host/options/Completion.h"
#include "host/options/HelpText.h"
#include "host/options/ManualPage.h"
#include "host/options/UsageChapter.h"
#include "support/Rows.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

#include <QStandardPaths>
#include <QtTest>

#include <set>

using namespace host;
using options::Option;

namespace {

std::vector<Option> everyOptionOf(const options::Command& command)
{
    std::vector<Option> all = options::optionsOf(command.id);
    all.insert(all.end(), options::commonOptions().begin(), options::commonOptions().end());
    return all;
}

/// The lines of a text that stand between two others.
QString between(const std::string& text, const QString& begin, const QString& end)
{
    const QString whole = QString::fromStdString(text);
    const int first = whole.indexOf(begin);
    return first < 0 ? QString() : whole.mid(first, whole.indexOf(end, first) - first);
}

bool fitsColumns(const std::string& text)
{
    for (const QString& line : QString::fromStdString(text).split('\n'))
        if (line.size() > 80)
            return false;
    return true;
}

} // namespace

class TestOptionTable : public QObject
{
    Q_OBJECT

private slots:
    void helpFitsAScreen()
    {
        std::vector<std::string> texts{helptext::program()};
        for (const options::Command& command : options::commands()) {
            texts.push_back(helptext::brief(command));
            QVERIFY2(fitsColumns(helptext::whole(command)), command.name.c_str());
        }
        for (const std::string& text : texts) {
            const QStringList lines = QString::fromStdString(text).split('\n');
            QVERIFY2(lines.size() - 1 < 24 && fitsColumns(text), text.c_str());
            for (int line = 0; line < 3; ++line)
                QVERIFY2(lines[line].startsWith("quintar "), text.c_str());
            QCOMPARE(lines[3], QString());
        }
    }

    void everyOptionIsToldOf()
    {
        for (const options::Command& command : options::commands()) {
            const QString help = QString::fromStdString(helptext::whole(command));
            const QString manual = QString::fromStdString(manualpage::of(command)).remove('\\');
            const QString chapter = between(usagechapter::text() + "### ",
                                            QString::fromStdString("### quintar " + command.name), "\n### ");
            const QString name = QString::fromStdString(command.name);
            const QString bash = between(completion::forBash(), "\n    " + name + ")", "documents=");
            const QString zsh =
                between(completion::forZsh(), "    " + name + ")\n        _arguments", ";;\n");
            const QString fish = QString::fromStdString(completion::forFish());
            for (const Option& option : everyOptionOf(command)) {
                const QString dashed = "--" + QString::fromStdString(option.name);
                const auto named = QByteArray::fromStdString(command.name + " --" + option.name);
                QVERIFY2(help.contains(QString::fromStdString("  " + option.form())), named);
                QVERIFY2(manual.contains("Fl " + dashed.mid(1)), named);
                QVERIFY2(bash.contains(dashed), named);
                QVERIFY2(zsh.contains("'" + dashed) || zsh.contains("'*" + dashed), named);
                QVERIFY2(fish.contains("__fish_seen_subcommand_from " + name + "' -l " + dashed.mid(2)),
                         named);
                const QString form = QString::fromStdString(option.form()).replace("|", "\\|");
                QVERIFY2(options::optionsOf(command.id).empty() || option.commands.empty() ||
                             chapter.contains("| `" + form + "` |"),
                         named);
            }
        }
    }

    void namesAreUnique()
    {
        for (const options::Command& command : options::commands()) {
            std::set<std::string> names;
            for (const Option& option : everyOptionOf(command)) {
                QVERIFY2(names.insert(option.name).second, option.name.c_str());
                QVERIFY2(option.letter == 0 || names.insert(std::string(1, option.letter)).second,
                         option.name.c_str());
                QVERIFY2(!option.brief.empty() && option.brief.size() <= 70, option.name.c_str());
            }
        }
    }

    void userGuideHasTheChapter()
    {
        const std::string guide = WorkFolder::contentOf(SOURCE_DIR "/docs/usage.md");
        QVERIFY2(usagechapter::inserted(guide) == guide, "build the target \"usagechapter\"");
        QVERIFY_EXCEPTION_THROWN(usagechapter::inserted("no chapter"), std::runtime_error);
    }

    void manualPagesAreClean()
    {
        if (QStandardPaths::findExecutable("mandoc").isEmpty())
            QSKIP("needs mandoc");
        const QDir pages(SHARE_DIR "/man/man1");
        QCOMPARE(pages.entryList(QDir::Files).size(), int(options::commands().size()) + 1);
        for (const QString& page : pages.entryList(QDir::Files)) {
            const ProgramRun lint("env", {"MANPATH=" SHARE_DIR "/man", "mandoc", "-Tlint", page},
                                  pages.path());
            QVERIFY2(lint.out.isEmpty(), lint.out);
        }
    }

    void shellsReadTheirScripts_data()
    {
        const Rows<QString, QString, QString> row;
        row("bash", "bash", "-n", "bash-completion/completions/quintar");
        row("zsh", "zsh", "-n", "zsh/site-functions/_quintar");
        row("fish", "fish", "--no-execute", "fish/vendor_completions.d/quintar.fish");
    }

    void shellsReadTheirScripts()
    {
        const auto [shell, check, script] = Rows<QString, QString, QString>::current();
        if (QStandardPaths::findExecutable(shell).isEmpty())
            QSKIP("needs the shell");
        const ProgramRun run(shell, {check, SHARE_DIR "/" + script});
        QVERIFY2(run.status == 0 && run.err.isEmpty(), run.err);
    }

    void bashCompletes_data()
    {
        const Rows<QString, QString> row;
        row("command", "ru", "run");
        row("option", "run --files", "--files-from");
        row("short option", "show --js", "--json");
        row("word", "run --signed re", "refuse");
        row("word behind =", "run --signed = re", "refuse");
        row("settings", "run --list ''", "folder list.xqq");
        row("folder", "run --base ''", "folder");
        row("document", "show a", "a b.PDF");
        row("report", "undo ''", "folder report.jsonl");
        row("help", "help conf", "configure");
        row("all help", "--help-", "--help-all");
        row("no documents", "lists ''", "");
    }

    void bashCompletes()
    {
        if (QStandardPaths::findExecutable("bash").isEmpty())
            QSKIP("needs bash");
        const auto [words, offered] = Rows<QString, QString>::current();
        const WorkFolder folder;
        for (const char* name : {"a b.PDF", "list.xqq", "report.jsonl", "text.txt", "folder/x.pdf"})
            WorkFolder::put(name, "");
        const ProgramRun run(
            "bash",
            {"-c", "source " SHARE_DIR "/bash-completion/completions/quintar; COMP_WORDS=(quintar " + words +
                       "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _quintar; echo -n \"${COMPREPLY[*]}\""},
            folder.path());
        QCOMPARE(QString::fromUtf8(run.out), offered);
    }
};

QTEST_GUILESS_MAIN(TestOptionTable)
#include "TestOptionTable.moc"
