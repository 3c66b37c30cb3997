#include "host/render/PageRequest.h"
#include "host/render/RequestQueue.h"
#include "support/Rows.h"
#include "support/documents/SpecialDocuments.h"
#include "support/folders/Files.h"

#include <QColor>
#include <QImage>
#include <QtTest>

#include <memory>

using namespace host;

namespace {

/// The program at work on a document.
class Renderer
{
public:
    explicit Renderer(const QByteArray& firstLine)
    {
        process.start(RENDER_FILE, QStringList());
        ask(firstLine);
    }

    void ask(const QByteArray& line) { process.write(line + '\n'); }

    QJsonObject answer()
    {
        while (!process.canReadLine())
            if (!process.waitForReadyRead(10'000))
                return {};
        return QJsonDocument::fromJson(process.readLine()).object();
    }

    /// What an answer announces.
    QImage picture(const QJsonObject& answer)
    {
        const int size = answer.value("bytes").toInt();
        while (process.bytesAvailable() < size)
            if (!process.waitForReadyRead(10'000))
                return {};
        const QByteArray bytes = process.read(size);
        const QImage image(reinterpret_cast<const uchar*>(bytes.constData()), answer.value("width").toInt(),
                           answer.value("height").toInt(), QImage::Format_RGB32);
        return image.copy();
    }

    QProcess process;
};

QByteArray asked(int page, int width, int height)
{
    return QJsonDocument(QJsonObject{{"id", page * 10}, {"page", page}, {"width", width}, {"height", height}})
        .toJson(QJsonDocument::Compact);
}

/// Its first page has a red corner at the lower left, and its second is the same turned clockwise.
std::string cornerDocument()
{
    return PdfBuilder()
        .catalog("")
        .object(2, "<< /Type /Pages /Count 2 /MediaBox [ 0 0 200 100 ] /Kids [ 3 0 R 4 0 R ] >>")
        .object(3, "<< /Type /Page /Parent 2 0 R /Contents 9 0 R >>")
        .object(4, "<< /Type /Page /Parent 2 0 R /Contents 9 0 R /Rotate 90 >>")
        .stream(9, "", "1 0 0 rg 0 0 100 50 re f")
        .bytes();
}

} // namespace

class TestRender : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(); // which leaves its folder
        m_folder = std::make_unique<WorkFolder>();
    }

    void drawsPages_data()
    {
        const Rows<int, QSize, QSize, QPoint> row; // page, room, size, and where it is red, in quarters
        row("as it is", 1, {200, 100}, {200, 100}, {1, 3});
        row("in a higher room", 1, {100, 400}, {100, 50}, {1, 3});
        row("in a wider room", 1, {800, 20}, {40, 20}, {1, 3});
        row("turned", 2, {100, 200}, {100, 200}, {1, 1});
    }

    void drawsPages()
    {
        const auto [page, room, size, red] = Rows<int, QSize, QSize, QPoint>::current();
        WorkFolder::put("b\xff.pdf", cornerDocument());
        const QByteArray name = QByteArray("b\xff.pdf").toBase64();
        Renderer renderer("{\"fileBytes\":\"" + name + "\"}");
        QCOMPARE(renderer.answer().value("pages"), QJsonValue(2));
        renderer.ask(asked(page, room.width(), room.height()));
        const QJsonObject answer = renderer.answer();
        QCOMPARE(answer.value("id"), QJsonValue(page * 10));
        const QImage picture = renderer.picture(answer);
        QCOMPARE(picture.size(), size);
        for (const int x : {1, 3})
            for (const int y : {1, 3})
                QCOMPARE(QColor(picture.pixel(picture.width() * x / 4, picture.height() * y / 4)),
                         QColor(QPoint(x, y) == red ? Qt::red : Qt::white));
        renderer.process.closeWriteChannel();
        QVERIFY(renderer.process.waitForFinished());
        QCOMPARE(renderer.process.exitCode(), 0);
        QCOMPARE(renderer.process.readAllStandardError(), QByteArray());
    }

    void saysWhatItCannotDraw_data()
    {
        const Rows<std::string, QString> row;
        const QStringList options{"--encrypt", "user", "owner", "256"};
        row("locked", encrypted(PdfBuilder::simple(), options), "password");
        row("text", "no document", "damaged");
    }

    void saysWhatItCannotDraw()
    {
        const auto [bytes, code] = Rows<std::string, QString>::current();
        WorkFolder::put("a.pdf", bytes);
        Renderer renderer("{\"file\":\"a.pdf\"}");
        const QJsonObject answer = renderer.answer();
        QCOMPARE(answer.value("event").toString() + answer.value("reasonCode").toString(), "failed" + code);
        QVERIFY(renderer.process.waitForFinished());
        QCOMPARE(renderer.process.exitCode(), 1);
    }

    void opensWithAPassword()
    {
        const QStringList options{"--encrypt", "us\u00e9r", "owner", "256"};
        WorkFolder::put("a.pdf", encrypted(PdfBuilder::simple("", 1), options));
        Renderer renderer("{\"file\":\"a.pdf\",\"password\":\"us\u00e9r\"}");
        QCOMPARE(renderer.answer().value("pages"), QJsonValue(1));
        renderer.ask(asked(2, 10, 10));
        QCOMPARE(renderer.answer().value("reasonCode"), QJsonValue("pageBeyondEnd"));
    }

    void refusesWhatIsNoRequest_data()
    {
        const Rows<QByteArray> row;
        row("nothing", "");
        row("no page", "{\"width\":10,\"height\":10}");
        row("no room", asked(1, 0, 10));
        row("too many pixels", asked(1, 2001, 2000));
        row("too many for a number", asked(1, 65536, 65536));
    }

    void refusesWhatIsNoRequest()
    {
        const auto [line] = Rows<QByteArray>::current();
        QVERIFY(!PageRequest::fromJson(line.toStdString()));
        WorkFolder::put("a.pdf", PdfBuilder::simple());
        Renderer renderer("{\"file\":\"a.pdf\"}");
        renderer.answer();
        renderer.ask(line);
        QVERIFY(renderer.process.waitForFinished());
        QCOMPARE(renderer.process.exitCode(), 2);
    }

    // Somebody who scrolls on looks at the newest page, and at none from before a jump.
    void drawsTheNewestFirst()
    {
        RequestQueue queue;
        const auto add = [&](int id, int epoch) { queue.add({id, 1, QSize(1, 1), epoch}); };
        const auto taken = [&] {
            QString ids;
            while (const auto request = queue.takeNext())
                ids += QString::number(request->id) + " ";
            return ids;
        };
        add(1, 1);
        add(2, 1);
        add(3, 1);
        QCOMPARE(taken(), QString("3 2 1 "));
        add(1, 1);
        add(2, 2);
        add(3, 1);
        add(4, 2);
        QCOMPARE(taken(), QString("4 2 "));
        for (int id = 0; id < 1000; ++id)
            add(id, 3);
        QCOMPARE(taken().count(' '), int(RequestQueue::mostWaiting));
    }

    void isLockedIn()
    {
        WorkFolder::put("a.pdf", PdfBuilder::simple());
        Renderer renderer("{\"file\":\"a.pdf\"}");
        QVERIFY(!renderer.answer().isEmpty());
        const QString process = QString("/proc/%1/").arg(renderer.process.processId());
        QVERIFY(bytesOf(process + "status").contains("NoNewPrivs:\t1\n"));
        const QString limits = QString(bytesOf(process + "limits")).simplified();
        for (const char* limit : {"Max core file size 0 0", "Max file size 0 0", "Max processes 0 0"})
            QVERIFY2(limits.contains(limit), limit);
    }

private:
    std::unique_ptr<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestRender)
#include "TestRender.moc"
