#include "engine/document/Metadata.h"
#include "pdflibrary/ErrorCodes.h"
#include "support/Rows.h"
#include "support/documents/Rewritten.h"
#include "support/engine/LoadedLibrary.h"
#include "support/folders/Files.h"

#include <QtTest>

#include <qpdf/Buffer.hh>

using namespace engine;

namespace {

/// A document whose metadata, object 8, has these entries and bytes.
std::string document(const std::string& bytes, const std::string& entries = "")
{
    return PdfBuilder()
        .catalog("/Metadata 8 0 R")
        .pages(1)
        .stream(8, "/Type /Metadata /Subtype /XML /Foo (bar) " + entries, bytes)
        .object(9, "(stays)")
        .bytes();
}

std::string utf16(const std::string& ascii, bool littleEndian)
{
    std::string bytes;
    for (const char character : ascii)
        bytes += littleEndian ? std::string{character, '\0'} : std::string{'\0', character};
    return bytes;
}

std::string asHex(const std::string& bytes)
{
    return QByteArray::fromStdString(bytes).toHex().toStdString() + ">";
}

std::string appended(LoadedLibrary& library, const QTemporaryDir& folder)
{
    const QString path = folder.filePath("appended.pdf");
    return library.AppendToFile(path.toStdWString()) == 1 ? bytesOf(path).toStdString() : std::string();
}

/// The metadata's bytes in a document, as libqpdf reads them.
std::string stored(const std::string& document)
{
    QPDF pdf;
    pdf.processMemoryFile("", document.data(), document.size());
    const auto data = pdf.getRoot().getKey("/Metadata");
    const auto buffer = QPDFObjectHandle(data).getStreamData(qpdf_dl_all);
    return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

} // namespace

class TestEngineMetadata : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void keepsTheEncoding_data()
    {
        const Rows<std::string, std::string> row; // the document, its metadata after the change
        const std::string little = "\xff\xfe";
        const std::string big = "\xfe\xff";
        const std::string utf8 = "\xef\xbb\xbf";
        row("UTF-8", document("<a/>"), "<b/>");
        row("with a mark", document(utf8 + "<a/>"), utf8 + "<b/>");
        row("UTF-16", document(utf16("<a/>", false)), utf16("<b/>", false));
        row("UTF-16 with a mark", document(big + utf16("<a/>", false)), big + utf16("<b/>", false));
        row("little endian", document(utf16("<a/>", true)), utf16("<b/>", true));
        row("little endian with a mark", document(little + utf16("<a/>", true)),
            little + utf16("<b/>", true));
        row("filtered", document(asHex("<a/>"), "/Filter /ASCIIHexDecode /DL 4"), "<b/>");
        row("crypt filter",
            document(asHex("<a/>"), "/Filter [/Crypt /ASCIIHexDecode] /DecodeParms [<< /Name "
                                    "/Identity >> null]"),
            "<b/>");
    }

    void keepsTheEncoding()
    {
        const auto [bytes, expected] = Rows<std::string, std::string>::current();
        LoadedLibrary library;
        library.LoadFromString(bytes, L"");
        QCOMPARE(library.GetDocumentMetadata(), std::wstring(L"<a/>"));
        QCOMPARE(library.SetDocumentMetadata(L"<a/>"), 1);
        QCOMPARE(library.SecurityInfo(UnsavedChanges), 0);
        QCOMPARE(library.SetDocumentMetadata(L"<b/>"), 1);
        const std::string after = appended(library, m_folder);
        QVERIFY(after.starts_with(bytes));
        QCOMPARE(stored(after), expected);
        const std::string update = after.substr(bytes.size());
        QVERIFY(update.find("/Foo (bar)") != update.npos && update.find("/DL") == update.npos);
        QVERIFY(update.find("1 0 obj") == update.npos);
        LoadedLibrary again;
        again.LoadFromString(library.SaveToString(), L"");
        QCOMPARE(again.GetDocumentMetadata(), std::wstring(L"<b/>"));
    }

    void encryptsAsTheDocumentAsks_data()
    {
        const Rows<std::string, bool> row; // whether the metadata can be read without a key
        for (const int revision : {2, 3, 4, 5, 6})
            row(QString::number(revision), encryptedBy(revision, document("<a/>")), false);
        row("4 with RC4",
            rewritten(document("<a/>"), [](QPDFWriter& writer) { encrypt(writer, 4, "", "", true, false); }),
            false);
        row("not the metadata", encryptedBy(6, document("<a/>"), "", false), true);
    }

    void encryptsAsTheDocumentAsks()
    {
        const auto [bytes, isPlain] = Rows<std::string, bool>::current();
        LoadedLibrary library;
        library.LoadFromString(bytes, L"");
        QCOMPARE(library.GetDocumentMetadata(), std::wstring(L"<a/>"));
        QCOMPARE(library.SetDocumentMetadata(L"<the new one/>"), 1);
        const std::string after = appended(library, m_folder);
        QCOMPARE(stored(after), std::string("<the new one/>"));
        QCOMPARE(after.find("<the new one/>") != after.npos, isPlain);
    }

    void addsAndRemoves()
    {
        LoadedLibrary library;
        library.LoadFromString(PdfBuilder::simple("/Metadata (none)"), L"");
        QCOMPARE(library.GetDocumentMetadata(), std::wstring());
        QCOMPARE(library.SetDocumentMetadata(L""), 1);
        QCOMPARE(library.SecurityInfo(UnsavedChanges), 0);
        QCOMPARE(library.SetDocumentMetadata(L"<\u6587/>"), 1);
        const std::string after = appended(library, m_folder);
        QCOMPARE(stored(after), std::string("<\xe6\x96\x87/>"));
        LoadedLibrary again;
        again.LoadFromString(after, L"");
        QCOMPARE(again.SetDocumentMetadata(L""), 1);
        const std::string without = appended(again, m_folder);
        QVERIFY(without.find("/Metadata", without.rfind("1 0 obj")) == without.npos);
    }

    void refusesWhatItCannotRead_data()
    {
        const Rows<std::string> row;
        row("no text", document("<a>\xe9</a>"));
        row("half a character", document("\xff\xfe<"));
        row("lone surrogate", document(std::string("\xfe\xff\xd8\0", 4)));
        row("unknown filter", document("<a/>", "/Filter /Other"));
        row("damaged", document("no such thing", "/Filter /FlateDecode"));
        row("in another file", document("", "/F (elsewhere)"));
        row("too large", document(std::string(Metadata::largest + 1, ' ')));
    }

    void refusesWhatItCannotRead()
    {
        const auto [bytes] = Rows<std::string>::current();
        LoadedLibrary library;
        library.LoadFromString(bytes, L"");
        QCOMPARE(library.GetDocumentMetadata(), std::wstring());
        QCOMPARE(library.LastErrorCode(), int(ErrorCode::MetadataUnreadable));
        QCOMPARE(library.SetDocumentMetadata(L"<b/>"), 0);
        QCOMPARE(library.LastErrorCode(), int(ErrorCode::MetadataUnreadable));
        QCOMPARE(library.SecurityInfo(UnsavedChanges), 0);
    }
};

QTEST_GUILESS_MAIN(TestEngineMetadata)
#include "TestEngineMetadata.moc"
