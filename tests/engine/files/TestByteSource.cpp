#include "engine/files/ByteSource.h"
#include "engine/update/DocumentTail.h"
#include "engine/update/SourceInput.h"
#include "support/Rows.h"
#include "support/engine/EngineErrors.h"
#include "support/folders/Files.h"

#include <QtTest>

#include <qpdf/FileInputSource.hh>

#include <sys/stat.h>
#include <unistd.h>

using namespace engine;

namespace {

ErrorCode openingError(const QString& path)
{
    return errorOf([&path] { ByteSource::openFile(path.toStdString()); });
}

} // namespace

class TestByteSource : public QObject
{
    Q_OBJECT

private slots:
    void opensRegularFilesOnly()
    {
        QTemporaryDir folder;
        QVERIFY(writeFile(folder.filePath("empty"), ""));
        QVERIFY(writeFile(folder.filePath("file"), "content"));
        QCOMPARE(::mkfifo(folder.filePath("fifo").toLocal8Bit().constData(), 0600), 0);
        QCOMPARE(openingError(folder.filePath("file")), ErrorCode::None);
        QCOMPARE(openingError(folder.filePath("empty")), ErrorCode::EmptyFile);
        QCOMPARE(openingError(folder.filePath("none")), ErrorCode::FileNotFound);
        QCOMPARE(openingError(folder.filePath("file/below")), ErrorCode::FileNotFound);
        QCOMPARE(openingError(folder.filePath("fifo")), ErrorCode::NotARegularFile);
        QCOMPARE(openingError(folder.path()), ErrorCode::NotARegularFile);
        QCOMPARE(openingError("/dev/null"), ErrorCode::NotARegularFile);
    }

    void noticesThatAFileChanged()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("file");
        QVERIFY(writeFile(path, QByteArray(10000, 'x')));
        const auto source = ByteSource::openFile(path.toStdString());
        QVERIFY(source->unchangedSinceOpened());
        QCOMPARE(source->text(9990, 100), std::string(10, 'x'));
        QFile::resize(path, 50);
        QVERIFY(!source->unchangedSinceOpened());
        QCOMPARE(source->text(40, 100), std::string(10, 'x'));
        SourceInput input(source, "cut short");
        std::string into(200, ' ');
        QCOMPARE(input.read(into.data(), 200), std::size_t(50));
        // libqpdf would look for lines for ever up to the end that it was told of before.
        QCOMPARE(input.findAndSkipNextEOL(), qpdf_offset_t(10000));
        QCOMPARE(input.tell(), qpdf_offset_t(10000));
    }

    void findsTheLastTail_data()
    {
        const Rows<QByteArray, qlonglong, int> row;
        const QByteArray tail = "startxref\n116\n%%EOF";
        row("usual", "%PDF-1.4\n" + tail + "\n", 116LL, 1);
        row("no marker", "x startxref 7\n", 7LL, 1);
        row("the last of two", tail + "\nstartxref\n5\n%%EOF", 5LL, 0);
        row("last without number", tail + "\nstartxref\nnone", 116LL, 15);
        row("far back", tail + QByteArray(300000, 'z'), 116LL, 300000);
        row("across a step", tail + QByteArray(2048 - 14, 'z'), 116LL, 2048 - 14);
        row("none", QByteArray(70000, 'z'), -1LL, 0);
        row("number too large", "startxref 99999999999999999999", -1LL, 0);
    }

    void findsTheLastTail()
    {
        const auto [text, number, behindEnd] = Rows<QByteArray, qlonglong, int>::current();
        const auto source = ByteSource::fromBytes(text.toStdString());
        const auto tail = findDocumentTail(*source);
        QCOMPARE(tail.has_value(), number >= 0);
        if (tail) {
            QCOMPARE(tail->startxref, std::uint64_t(number));
            QCOMPARE(source->size() - tail->end, std::uint64_t(behindEnd));
        }
    }

    void leavesOutALongTailWithoutObjects()
    {
        const std::string document = "%PDF-1.4\nstartxref\n9\n%%EOF";
        const auto endOf = [](const std::string& text) { return documentEnd(*ByteSource::fromBytes(text)); };
        QCOMPARE(endOf(document + std::string(500, '\n')), document.size() + 500);
        QCOMPARE(endOf(document + std::string(5000, '\n')), document.size());
        const std::string update = document + "\n7 0 obj\nnull\nendobj\n" + std::string(5000, ' ');
        QCOMPARE(endOf(update), update.size());
    }

    // libqpdf's own input over a file says what is right.
    void readsAsLibqpdfDoes()
    {
        std::string text;
        for (int i = 0; i < 3000; ++i)
            text += std::to_string(i) + (i % 7 == 0    ? "\r\n"
                                         : i % 5 == 0  ? "\r"
                                         : i % 11 == 0 ? "\n\n"
                                                       : " ");
        text += std::string(20000, 'x');
        QTemporaryDir folder;
        const QString path = folder.filePath("file");
        QVERIFY(writeFile(path, QByteArray::fromStdString(text)));
        SourceInput input(ByteSource::openFile(path.toStdString()), "ours");
        FileInputSource expected(path.toLocal8Bit().constData());
        std::string ours(40000, ' ');
        std::string theirs(40000, ' ');
        quint32 state = 12345;
        for (int i = 0; i < 5000; ++i) {
            state = state * 1664525 + 1013904223;
            const auto number = static_cast<qpdf_offset_t>((state >> 8) % (text.size() + 100));
            const auto size = static_cast<std::size_t>(i % 50 == 0 ? 15000 : number % 300);
            if (i % 3 == 0) {
                input.seek(number, SEEK_SET);
                expected.seek(number, SEEK_SET);
            }
            if (i % 4 == 0)
                QCOMPARE(input.findAndSkipNextEOL(), expected.findAndSkipNextEOL());
            const std::size_t count = input.read(ours.data(), size);
            QCOMPARE(count, expected.read(theirs.data(), size));
            QCOMPARE(ours.substr(0, count), theirs.substr(0, count));
            QCOMPARE(input.tell(), expected.tell());
            QCOMPARE(input.getLastOffset(), expected.getLastOffset());
            if (count > 0) {
                input.unreadCh(ours[count - 1]);
                expected.unreadCh(ours[count - 1]);
                QCOMPARE(input.readLine(100), expected.readLine(100));
            }
        }
        QVERIFY_EXCEPTION_THROWN(input.seek(-1, SEEK_SET), std::runtime_error);
    }
};

QTEST_GUILESS_MAIN(TestByteSource)
#include "TestByteSource.moc"
