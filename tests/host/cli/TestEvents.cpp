// What other programs see of a run that they have started, and how they steer it.
#include "host/cell/ProcessLimits.h"
#include "host/failures/Failure.h"
#include "support/Rows.h"
#include "support/documents/SpecialDocuments.h"
#include "support/folders/Files.h"

#include <QtTest>

#include <csignal>
#include <map>
#include <memory>
#include <optional>

namespace {

const QStringList asked{"--page-mode", "bookmarks"};

/// A run that is under way.
class LiveRun
{
public:
    LiveRun(const QString& program, const QStringList& arguments)
    {
        m_process.start(program, arguments);
        m_process.waitForStarted();
    }

    QProcess& process() { return m_process; }
    const QList<QJsonObject>& events() const { return m_events; }

    /// Waits for an event; an empty object when none comes.
    QJsonObject next(const QString& name)
    {
        for (;;) {
            while (m_process.canReadLine()) {
                m_events += QJsonDocument::fromJson(m_process.readLine()).object();
                if (m_events.last().value("event") == name)
                    return m_events.last();
            }
            if (!m_process.waitForReadyRead(20'000))
                return {};
        }
    }

    int countOf(const QString& name) const
    {
        return int(std::count_if(m_events.begin(), m_events.end(),
                                 [&](const QJsonObject& each) { return each.value("event") == name; }));
    }

private:
    QProcess m_process;
    QList<QJsonObject> m_events;
};

std::vector<pid_t> childrenOf(qint64 process)
{
    const QByteArray path = QString("/proc/%1/task/%1/children").arg(process).toLatin1();
    std::vector<pid_t> children;
    for (const QByteArray& each : bytesOf(path).split(' '))
        if (!each.trimmed().isEmpty())
            children.push_back(each.toInt());
    return children;
}

/// A process that has ended may wait for somebody to ask how.
bool isAlive(pid_t process)
{
    const QByteArray state = bytesOf(QString("/proc/%1/stat").arg(process));
    return !state.isEmpty() && !state.contains(") Z ");
}

} // namespace

class TestEvents : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(); // which leaves its folder
        m_folder = std::make_unique<WorkFolder>();
    }

    void tellsWhatGoesOn_data()
    {
        const Rows<QStringList, QString, QStringList> row; // how it ends, in words and counts
        const QStringList change = QStringList{"--events"} + asked + QStringList{"in"};
        row("show", {"show", "--events", "in"}, "document", {"read", "3", "failed", "1"});
        row("check", QStringList{"check"} + change, "differs",
            {"differs", "2", "asAsked", "1", "failed", "1"});
        row("run", QStringList{"run", "-o", "out"} + change, "changed",
            {"changed", "2", "unchanged", "1", "failed", "1", "doneBefore", "0"});
        row("dry run", QStringList{"run", "--in-place", "-n"} + change, "changed",
            {"changed", "2", "unchanged", "1", "failed", "1"});
        row("undo", {"undo", "--events", "report"}, "undone", {"undone", "2", "undoneAlready", "0"});
        row("undo of some", {"undo", "--events", "--files-from", "list", "--null", "report"}, "undone",
            {"undone", "1", "leftAlone", "1"});
    }

    void tellsWhatGoesOn()
    {
        const auto [words, status, counts] = Rows<QStringList, QString, QStringList>::current();
        WorkFolder::put("in/a.pdf", PdfBuilder::simple());
        WorkFolder::put("in/b\xff.pdf", PdfBuilder::simple());
        WorkFolder::put("in/bad.pdf", "no document");
        WorkFolder::put("in/c.pdf", PdfBuilder::simple("/PageMode /UseOutlines"));
        WorkFolder::put("list", std::string("in/b\xff.pdf\0elsewhere.pdf\0", 24));
        if (words.contains("report"))
            ProgramRun(PROGRAM_FILE, QStringList{"run", "--in-place", "--report", "report", "in"} + asked);
        const ProgramRun run(PROGRAM_FILE, words);
        QCOMPARE(run.err, QByteArray());
        QList<QJsonObject> events = ProgramRun::jsonLines(run.out);
        const QJsonObject start = events.takeFirst();
        QCOMPARE(start.value("event").toString() + start.value("command").toString(), "start" + words[0]);
        QCOMPARE(start.value("version"), QJsonValue(1));
        const QJsonObject end = events.takeLast();
        QCOMPARE(end.value("event"), QJsonValue("end"));
        QCOMPARE(end.value("stopped"), QJsonValue(false));
        for (int place = 0; place < counts.size(); place += 2)
            QCOMPARE(end.value(counts[place]).toInt(-1), counts[place + 1].toInt());
        checkDocuments(events, status);
    }

    void failuresHaveCodes()
    {
        QStringList words{"run",       "--events", "--in-place", "--report", "report",    "--open-page", "2",
                          "--timeout", "1",        "--memory",   "200",      "/dev/null", "gone.pdf"};
        std::map<QString, QString> codes{{"/dev/null", "notAFile"}, {"gone.pdf", "notFound"}};
        for (const auto& [name, bytes, code] : failures()) {
            if (code == "memory" && host::sanitized) // workers have no memory limit then
                continue;
            WorkFolder::put(name, bytes);
            words += QString::fromStdString(name);
            codes[words.last()] = code;
        }
        WorkFolder::put("newer", PdfBuilder::simple("", 4)); // for what is replaced
        const ProgramRun run(programBesideTrouble(m_folder->path("installed")), words);
        std::vector<QString> found;
        for (const QJsonObject& event : ProgramRun::jsonLines(run.out)) {
            if (event.value("event") == "found")
                found.push_back(event.value("file").toString());
            if (event.value("event") == "result")
                QCOMPARE(event.value("reasonCode").toString(),
                         codes.at(found.at(size_t(event["number"].toInt()))));
        }
        QCOMPARE(found.size(), codes.size());
        for (const QJsonObject& line : ProgramRun::jsonLines(bytesOf("report")))
            if (line.contains("file") && line.value("status") != "begun")
                QCOMPARE(line.value("reasonCode").toString(), codes.at(line.value("file").toString()));
    }

    void stops_data()
    {
        const Rows<QByteArray, int> row; // what is said after the first document, and how many are done
        row("at a word", "stop\n", 2);
        row("at the end", "", 2);
        row("at once", "stop\nstop\n", 1);
    }

    void stops()
    {
        const auto [said, done] = Rows<QByteArray, int>::current();
        LiveRun run(slowly(), slowRun(4));
        run.next("result");
        run.process().write(said);
        if (said.isEmpty())
            run.process().closeWriteChannel();
        const QJsonObject end = run.next("end");
        QVERIFY(run.process().waitForFinished());
        QCOMPARE(run.process().exitCode(), 130);
        QCOMPARE(end.value("stopped"), QJsonValue(true));
        // A worker that is slow to take the next document does not take it any more.
        const int changed = end.value("changed").toInt();
        QVERIFY(changed >= 1 && changed <= done);
        QCOMPARE(end.value("notDone").toInt(), 4 - changed);
        const QJsonObject last = ProgramRun::jsonLines(bytesOf("report")).last();
        QCOMPARE(last.value("event").toString() + last.value("stopped").toVariant().toString(),
                 QString("endtrue"));
        QCOMPARE(last.value("notDone").toInt(), 4 - changed);
    }

    // Longer than a document may take: nobody is late who waits.
    void pausesAndGoesOn()
    {
        LiveRun run(slowly(), slowRun(4) + QStringList{"--timeout", "1"});
        run.next("result");
        run.process().write("pause\n");
        const auto waitFor = [&](int milliseconds) {
            const QElapsedTimer time = started();
            while (time.elapsed() < milliseconds)
                QVERIFY(run.next("progress").contains("done"));
        };
        waitFor(1100); // what it was at comes to an end
        const int results = run.countOf("result");
        QVERIFY(results == 1 || results == 2);
        waitFor(1100);
        QCOMPARE(run.countOf("result"), results);
        run.process().write("resume\n");
        QCOMPARE(run.next("end").value("changed").toInt(), 4);
        QVERIFY(run.process().waitForFinished());
        QCOMPARE(run.process().exitCode(), 0);
    }

    void everyCommandIsSteered_data()
    {
        const Rows<QStringList> row;
        row("show", {"show", "in"});
        row("check", QStringList{"check", "in"} + asked);
        row("undo", {"undo", "report"});
    }

    void everyCommandIsSteered()
    {
        const auto [words] = Rows<QStringList>::current();
        WorkFolder::put("in/a.pdf", PdfBuilder::simple());
        const ProgramRun before(PROGRAM_FILE,
                                QStringList{"run", "--in-place", "--report", "report", "in"} + asked);
        LiveRun run(PROGRAM_FILE, words + QStringList{"--events", "--control"});
        run.process().write("pause\n");
        run.next("progress");
        QCOMPARE(run.countOf("result") + run.countOf("document"), 0);
        run.process().write("resume\n");
        QCOMPARE(run.next("end").value("stopped"), QJsonValue(false));
        QCOMPARE(run.countOf("result") + run.countOf("document"), 1);
    }

    void passesOverWhatIsNoWord()
    {
        LiveRun run(slowly(), slowRun(1));
        run.process().write(QByteArray(1 << 20, 'x') + "\n\n" + QByteArray(3, '\0') + "\nstop it\npaus\n");
        QCOMPARE(run.next("end").value("changed").toInt(), 1);
        QVERIFY(run.process().waitForFinished());
        QCOMPARE(run.process().exitCode(), 0);
        const QByteArray err = run.process().readAllStandardError();
        QVERIFY2(err.startsWith("quintar: note: \"xxx") && err.count('\n') == 1 && err.size() < 200, err);
    }

    void workersEndWithTheirLeader()
    {
        WorkFolder::put("hang1.pdf", PdfBuilder::simple());
        WorkFolder::put("hang2.pdf", PdfBuilder::simple());
        LiveRun run(slowly(), {"show", "--events", "--control", "--jobs", "2", "hang1.pdf", "hang2.pdf"});
        std::vector<pid_t> workers;
        QTRY_VERIFY((workers = childrenOf(run.process().processId())).size() == 2);
        run.process().kill();
        for (const pid_t worker : workers)
            QTRY_VERIFY(!isAlive(worker));
    }

    void systemErrorsHaveCodes()
    {
        using host::Failure, host::ReasonCode;
        for (const auto& [number, name] :
             {std::pair{ENOSPC, "noSpace"}, std::pair{EDQUOT, "noSpace"}, std::pair{EROFS, "readOnly"},
              std::pair{EACCES, "accessDenied"}, std::pair{EIO, "writeFailed"}})
            QCOMPARE(nameOf(Failure::ofSystem(number, ReasonCode::WriteFailed).code), name);
    }

    void codesAreToldInTheGuideOnce()
    {
        QByteArray guide = bytesOf(SOURCE_DIR "/docs/usage.md");
        guide.remove(0, guide.indexOf("\n### Reasons"));
        guide.truncate(guide.indexOf("\n#", 1));
        for (std::size_t code = 1; code < host::reasonCodeCount; ++code) {
            const QByteArray name = nameOf(static_cast<host::ReasonCode>(code));
            QVERIFY2(guide.count("\n| `" + name + "` |") == 1, name);
        }
    }

private:
    struct Failing
    {
        std::string name;
        std::string bytes;
        QString code;
    };

    /// Documents that a run fails on, with the codes of the reasons.
    static std::vector<Failing> failures()
    {
        const std::string simple = PdfBuilder::simple();
        const std::string broken = "trailer\n<< /Root 1 0 R >>\nstartxref\n9\n%%EOF\n";
        const QStringList locked{"--encrypt", "user", "owner", "256"};
        const QStringList guarded{"--encrypt", "", "owner", "256", "--modify=none"};
        return {{"signed.pdf", signedDocument(), "signed"},
                {"certified.pdf", signedDocument("/Perms << /DocMDP 9 0 R >>"), "certified"},
                {"locked.pdf", encrypted(simple, locked), "password"},
                {"guarded.pdf", encrypted(simple, guarded), "permission"},
                {"text.pdf", "no document", "notPdf"},
                {"empty.pdf", "", "emptyFile"},
                {"cut.pdf", simple.substr(0, 40), "damaged"},
                {"unclear.pdf", simple + broken, "uncertain"},
                {"short.pdf", PdfBuilder::simple("", 1), "pageBeyondEnd"},
                {"crash.pdf", simple, "crashed"},
                {"hang.pdf", simple, "timeout"},
                {"hungry.pdf", simple, "memory"},
                {"replaced.pdf", simple, "changedMeanwhile"}};
    }

    QString slowly() const { return programBesideTrouble(m_folder->path("installed")); }

    /// A document at a time, each of which takes 0.7 s.
    static QStringList slowRun(int documents)
    {
        QStringList words =
            QStringList{"run", "--events", "--control", "--jobs", "1", "--report", "report", "--in-place"} +
            asked;
        for (int number = 0; number < documents; ++number) {
            words += QString("slow%1.pdf").arg(number);
            WorkFolder::put(words.last().toStdString(), PdfBuilder::simple());
        }
        return words;
    }

    static QElapsedTimer started()
    {
        QElapsedTimer time;
        time.start();
        return time;
    }

    /// Numbers stand for what was found, and each ends once.
    static void checkDocuments(const QList<QJsonObject>& events, const QString& status)
    {
        std::map<int, QString> ends;
        QByteArrayList found;
        for (const QJsonObject& event : events) {
            const QString name = event.value("event").toString();
            const int number = event.value("number").toInt(-1);
            if (name == "found") {
                QCOMPARE(number, found.size());
                const QJsonValue exact = event.value("fileBytes");
                found += exact.isNull() ? event.value("file").toString().toUtf8()
                                        : QByteArray::fromBase64(exact.toString().toLatin1());
            } else if (name != "progress") {
                QVERIFY2(ends.count(number) == 0 && number >= 0 && number < found.size(), qPrintable(name));
                ends[number] = name == "result" ? event.value("status").toString() : name;
            }
        }
        QCOMPARE(int(ends.size()), found.size());
        for (int number = 0; number < found.size(); ++number) {
            if (found[number].endsWith("b\xff.pdf"))
                QCOMPARE(ends[number], status);
            if (found[number].endsWith("bad.pdf"))
                QCOMPARE(ends[number], QString("failed"));
        }
        QVERIFY(std::any_of(found.begin(), found.end(),
                            [](const QByteArray& each) { return each.endsWith("b\xff.pdf"); }));
    }

    std::unique_ptr<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestEvents)
#include "TestEvents.moc"
