#include "host/report/Report.h"
#include "support/folders/WorkFolder.h"
#include "support/program/UsageErrors.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <csignal>
#include <optional>

#include <sys/resource.h>

using namespace host;
namespace fs = std::filesystem;

class TestReport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }
    void cleanup() { m_folder.reset(); }

    void reportsInOrderAndInValidJson()
    {
        const auto line = [](const std::string& file) {
            return Report::Line{file, "",
                                DocumentResult::failed({ReasonCode::Damaged, "\"quoted\"\n\x01\xff"}, 7)};
        };
        Report report("report", Report::Start::New);
        report.begin({});
        report.add(2, line("third"));
        report.add(0, line("fir\nst"));
        QCOMPARE(WorkFolder::contentOf("report").find("third"), std::string::npos);
        report.add(1, line("\xff\"\\"));
        const QByteArray text = QByteArray::fromStdString(WorkFolder::contentOf("report"));
        QList<QByteArray> lines = text.trimmed().split('\n');
        QVERIFY(Report::isAboutRun(QJsonDocument::fromJson(lines.takeFirst()).object()));
        QStringList files;
        for (const QByteArray& each : lines) {
            QVERIFY(!Report::isAboutRun(QJsonDocument::fromJson(each).object()));
            const QJsonDocument document = QJsonDocument::fromJson(each);
            QVERIFY2(document.isObject(), each);
            files += document.object().value("file").toString();
            QCOMPARE(document.object().value("milliseconds").toInt(), 7);
            QVERIFY(document.object().value("output").isNull());
        }
        QCOMPARE(files, (QStringList{"fir\nst", QString(QChar(0xfffd)) + "\"\\", "third"}));
        report.add(4, line("after a gap"));
        report.end({{"failed", 4}});
        const std::string ended = WorkFolder::contentOf("report");
        QVERIFY(ended.find("after a gap") < ended.find("\"event\":\"end\",\"failed\":4"));
    }

    // What is there stays until the run begins, and a file that no run began with goes again.
    void belongsToOneRun()
    {
        const auto taking = [](const char* path, Report::Start start) {
            return refusalOf([&] { Report(path, start); });
        };
        WorkFolder::put("report", "of an earlier run\n");
        const std::string busy = "the report report is being written by another run";
        for (const Report::Start start : {Report::Start::New, Report::Start::Continue}) {
            const Report first("report", start);
            QCOMPARE(taking("report", Report::Start::New), busy);
            QCOMPARE(taking("report", Report::Start::Continue), busy);
            QCOMPARE(WorkFolder::contentOf("report"), std::string("of an earlier run\n"));
            QCOMPARE(taking("/dev/null", Report::Start::New), std::string());
        }
        Report("report", Report::Start::New).begin({});
        QVERIFY(WorkFolder::contentOf("report").find("earlier") == std::string::npos);
        QCOMPARE(taking("unused", Report::Start::New), std::string());
        QVERIFY(!fs::exists("unused"));
        Report later("made/meanwhile", Report::Start::Continue);
        fs::create_directory("made");
        later.begin({});
        QVERIFY(fs::exists("made/meanwhile"));
        QVERIFY(!taking("made/meanwhile", Report::Start::New).empty());
    }

    // Lines that a full disk has cut off would be the end of what --resume can read.
    void writesWholeLines()
    {
        const Report::Line line{"a.pdf", "a.pdf", {Status::Changed, Saved::Appended, {}, 7}};
        const std::string text = Report::toJson(line);
        struct rlimit before;
        getrlimit(RLIMIT_FSIZE, &before);
        const auto handler = signal(SIGXFSZ, SIG_IGN);
        for (const std::size_t room : {text.size() / 2, text.size() + 5, text.size() * 2 - 4}) {
            Report report("report", Report::Start::New);
            report.begin({});
            const std::string head = WorkFolder::contentOf("report");
            const struct rlimit limit
            {
                head.size() + room, before.rlim_max
            };
            setrlimit(RLIMIT_FSIZE, &limit);
            for (std::size_t place = 0; place < 3; ++place)
                report.add(place, line);
            bool isAnnounced = true;
            try {
                report.announce(line);
            } catch (const std::runtime_error&) {
                isAnnounced = false;
            }
            setrlimit(RLIMIT_FSIZE, &before);
            QVERIFY(!isAnnounced && !report.problem().empty());
            QCOMPARE(WorkFolder::contentOf("report"), head + (room < text.size() ? std::string() : text));
        }
        signal(SIGXFSZ, handler);
    }

    void tellsNotes()
    {
        DocumentResult result{Status::Changed, Saved::Appended, {}, 0};
        QVERIFY(Report::toJson({"a.pdf", "a.pdf", result}).find("note") == std::string::npos);
        result.note = "could not be kept: owner";
        const QByteArray line = QByteArray::fromStdString(Report::toJson({"a.pdf", "a.pdf", result}));
        QCOMPARE(QJsonDocument::fromJson(line).object().value("note").toString(),
                 QString("could not be kept: owner"));
    }

private:
    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReport)
#include "TestReport.moc"
