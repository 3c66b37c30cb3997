#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/writing/DocumentWriter.h"
#include "engine/writing/InPlaceUpdate.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/Rewritten.h"
#include "support/engine/EngineErrors.h"

#include <QtTest>

using namespace engine;

namespace {

std::unique_ptr<Document> changed(const std::string& bytes, const char* mode = "/UseThumbs")
{
    auto document = std::make_unique<Document>(ByteSource::fromBytes(bytes), "", "");
    document->setCatalogKey("/PageMode", QPDFObjectHandle::newName(mode));
    return document;
}

std::string updateFor(const std::string& bytes, const char* mode = "/UseThumbs")
{
    return inPlaceUpdateOf(*changed(bytes, mode));
}

QByteArray pageMode(const std::string& bytes)
{
    Document document(ByteSource::fromBytes(bytes), "", "");
    document.readWhole();
    return document.anyWarnings()
               ? "warned"
               : QByteArray::fromStdString(document.catalog().getKey("/PageMode").unparse());
}

/// A document with so many bytes in a stream.
std::string withBytes(std::size_t size, const std::string& catalog = "")
{
    return PdfBuilder().catalog(catalog).pages(1).stream(9, "", std::string(size, 'x')).bytes();
}

std::string withoutLineEnd(const std::string& bytes)
{
    return bytes.substr(0, bytes.size() - 1);
}

} // namespace

class TestInPlaceUpdate : public QObject
{
    Q_OBJECT

private slots:
    void putsTheLastLinesIntoOneSector()
    {
        bool padded = false;
        for (std::size_t size = 1000; size < 1512; ++size) {
            const std::string before = withBytes(size);
            const std::string after = before + updateFor(before);
            const std::size_t lastLines = after.rfind("startxref");
            QCOMPARE(lastLines / 512, (after.size() - 1) / 512);
            QVERIFY(lastLines % 512 == 0 || !after.substr(0, lastLines).ends_with("\n\n"));
            padded = padded || after.substr(0, lastLines).ends_with("\n\n");
            QCOMPARE(pageMode(after), QByteArray("/UseThumbs"));
        }
        QVERIFY(padded);
    }

    void leavesToCopiesWhatReadersCouldNotice_data()
    {
        const Rows<std::string, ErrorCode> row;
        const std::string simple = PdfBuilder::simple();
        const std::string moved = std::string(simple).insert(simple.rfind("startxref\n") + 10, "7");
        row("an update of 900 bytes", withBytes(10, "/Key (" + std::string(730, 'x') + ")"), ErrorCode::None);
        row("a long update", withBytes(10, "/Key (" + std::string(900, 'x') + ")"), ErrorCode::NotInPlace);
        row("a little behind the end", simple + std::string(99, '\n'), ErrorCode::None);
        row("much behind the end", simple + std::string(100, '\n'), ErrorCode::NotInPlace);
        row("both, though neither is too much by itself",
            withBytes(10, "/Key (" + std::string(730, 'x') + ")") + std::string(99, '\n'),
            ErrorCode::NotInPlace);
        row("the word in a text", withBytes(10, "/Key (startxref 5)"), ErrorCode::NotInPlace);
        row("the word as a name", withBytes(10, "/startxref 5"), ErrorCode::NotInPlace);
        row("a wrong startxref", moved, ErrorCode::NotInPlace);
        row("something before the header", "\n" + simple, ErrorCode::NotInPlace);
    }

    void leavesToCopiesWhatReadersCouldNotice()
    {
        const auto [bytes, code] = Rows<std::string, ErrorCode>::current();
        const auto document = changed(bytes);
        QCOMPARE(errorOf([&] { inPlaceUpdateOf(*document); }), code);
        QVERIFY(!updateOf(*document).empty());
        QVERIFY(!cannotAppend(ErrorCode::NotInPlace));
    }

    void completesAnUpdateThatWasBegun_data()
    {
        const Rows<std::string> row;
        row("table", withBytes(1234));
        row("no line end", withoutLineEnd(withBytes(1234)));
        row("padded", withBytes(1322));
        row("identified", PdfBuilder().catalog("").pages(1).trailer("/ID [<61> <62>]").bytes());
        row("cross-reference stream", inObjectStreams(withBytes(1234)));
    }

    void completesAnUpdateThatWasBegun()
    {
        const auto [before] = Rows<std::string>::current();
        const std::string after = before + updateFor(before);
        for (std::size_t size = before.size(); size <= after.rfind("startxref"); ++size)
            QVERIFY2(after.substr(0, size) + updateFor(after.substr(0, size)) == after,
                     qPrintable(QString::number(size)));
    }

    // Nothing is cut off: what is another update's begin may be anything.
    void appendsBehindWhatItDidNotBegin()
    {
        const std::string before = withBytes(1234);
        const std::string other = updateFor(before, "/UseOutlines");
        const std::string torn = before + other.substr(0, other.rfind("startxref"));
        QCOMPARE(errorOf([&] { updateFor(torn); }), ErrorCode::NotInPlace);
        QCOMPARE(pageMode(torn + updateOf(*changed(torn))), QByteArray("/UseThumbs"));
        const std::string little = before + other.substr(0, 40);
        QCOMPARE(pageMode(little + updateFor(little)), QByteArray("/UseThumbs"));
    }
};

QTEST_GUILESS_MAIN(TestInPlaceUpdate)
#include "TestInPlaceUpdate.moc"
