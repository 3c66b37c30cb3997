#include "support/Rows.h"
#include "support/documents/Rewritten.h"
#include "support/folders/Files.h"

#include "engine/boundary/Operations.h"
#include "engine/boundary/Session.h"
#include "engine/files/EngineError.h"

#include <QtTest>

using namespace engine;
using namespace engine::operations;

namespace {

const int title = 1;
const int author = 2;
const int subject = 3;
const int modified = 8;

enum class Writing { Append, Anew };

/// A document whose trailer and objects 9 and 10 are given.
std::string document(const std::string& trailer, const std::string& nine = "null")
{
    return PdfBuilder()
        .catalog("")
        .pages(2)
        .object(9, nine)
        .object(10, "(in an object of its own)")
        .trailer(trailer)
        .bytes();
}

} // namespace

class TestEngineInformation : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    std::string written(Session& session, Writing writing)
    {
        if (writing == Writing::Anew)
            return SaveToString(session);
        const QString path = m_folder.filePath("written.pdf");
        return AppendToFile(session, path.toStdWString()) == 1 ? bytesOf(path).toStdString() : std::string();
    }

private slots:
    void survivesBothWaysOfWriting_data()
    {
        const Rows<std::string> row;
        const std::string ordinary = document("/Info 9 0 R /Other 10 0 R", "<< /Title (old) /Author (A) >>");
        row("indirect", ordinary);
        row("indirect values", document("/Info 9 0 R", "<< /Title 10 0 R /Author (A) >>"));
        row("in the trailer", document("/Info << /Title (old) /Author (A) >>"));
        row("in an object stream", inObjectStreams(ordinary));
        for (const int revision : {2, 3, 4, 6})
            row(QString("encrypted %1").arg(revision), encryptedBy(revision, ordinary));
    }

    void survivesBothWaysOfWriting()
    {
        const auto [bytes] = Rows<std::string>::current();
        for (const Writing writing : {Writing::Append, Writing::Anew}) {
            Session session;
            QCOMPARE(LoadFromString(session, bytes, {}), 1);
            QCOMPARE(SetInformation(session, title, L"new \u6587"), 1);
            QCOMPARE(SetInformation(session, modified, L"D:20240101"), 1);
            QCOMPARE(SecurityInfo(session, UnsavedChanges), 1);
            const std::string after = written(session, writing);
            QVERIFY(writing == Writing::Anew || after.starts_with(bytes));
            Session again;
            QCOMPARE(LoadFromString(again, after, {}), 1);
            QCOMPARE(GetInformation(again, title), std::wstring(L"new \u6587"));
            QCOMPARE(GetInformation(again, author), std::wstring(L"A"));
            QCOMPARE(GetInformation(again, modified), std::wstring(L"D:20240101"));
            QCOMPARE(PageCount(again), 2);
            QVERIFY(again.document().document.trailerKey("/Info").isIndirect());
            QCOMPARE(again.document().document.anyWarnings(), false);
        }
    }

    void replacesWhatIsNoInformation_data()
    {
        const Rows<std::string> row;
        row("missing", document(""));
        row("null", document("/Info 9 0 R"));
        row("not in the document", document("/Info 99 0 R"));
        row("array", document("/Info 9 0 R", "[(old)]"));
        row("wrong value", document("/Info 9 0 R", "<< /Title [(old)] >>"));
    }

    void replacesWhatIsNoInformation()
    {
        const auto [bytes] = Rows<std::string>::current();
        for (const Writing writing : {Writing::Append, Writing::Anew}) {
            Session session;
            QCOMPARE(LoadFromString(session, bytes, {}), 1);
            QCOMPARE(GetInformation(session, title), std::wstring());
            QCOMPARE(SetInformation(session, title, L"new"), 1);
            Session again;
            QCOMPARE(LoadFromString(again, written(session, writing), {}), 1);
            QCOMPARE(GetInformation(again, title), std::wstring(L"new"));
        }
    }

    void writesTextAsBrieflyAsItCan_data()
    {
        const Rows<std::wstring, std::string, std::wstring> row;
        const auto same = [&](const char* name, const std::wstring& text, const std::string& stored) {
            row(name, text, stored, text);
        };
        same("ASCII", L"a (b)\\", "a (b)\\");
        same("in PDFDocEncoding", L"\u00e9\u20ac\u2022", "\xe9\xa0\x80");
        same("outside it", L"a\u6587", std::string("\xfe\xff\0a\x65\x87", 6));
        same("beyond 16 bits", L"\U0001f600", std::string("\xfe\xff\xd8\x3d\xde\0", 6));
        same("like a byte order mark", L"\u00fe\u00ff", std::string("\xfe\xff\0\xfe\0\xff", 6));
        row("no character", L"a\xd800\xdc80", "\xfe\xff", L"a\ufffd\ufffd");
    }

    void writesTextAsBrieflyAsItCan()
    {
        const auto [text, stored, read] = Rows<std::wstring, std::string, std::wstring>::current();
        Session session;
        QCOMPARE(LoadFromString(session, document("/Info 9 0 R", "<< >>"), {}), 1);
        QCOMPARE(SetInformation(session, title, text), 1);
        const std::string bytes = written(session, Writing::Append);
        QPDF pdf;
        pdf.processMemoryFile("", bytes.data(), bytes.size());
        const std::string found = pdf.getTrailer().getKey("/Info").getKey("/Title").getStringValue();
        if (text == read)
            QCOMPARE(found, stored);
        QCOMPARE(GetInformation(session, title), read);
    }

    void removesWithAnEmptyText()
    {
        Session session;
        QCOMPARE(LoadFromString(session, document("/Info 9 0 R", "<< /Title (old) /Author (A) >>"), {}), 1);
        QCOMPARE(SetInformation(session, title, L""), 1);
        const std::string bytes = written(session, Writing::Append);
        QVERIFY(bytes.find("/Title", bytes.rfind("9 0 obj")) == std::string::npos);
        QVERIFY(bytes.find("/Author", bytes.rfind("9 0 obj")) != std::string::npos);
    }

    void changesNothingThatIsThere()
    {
        Session session;
        QCOMPARE(LoadFromString(session, document("/Info << /Title (old) /Subject () >>"), {}), 1);
        QCOMPARE(SetInformation(session, title, L"old"), 1);
        QCOMPARE(SetInformation(session, author, L""), 1);
        QCOMPARE(SecurityInfo(session, UnsavedChanges), 0);
        for (const int key : {0, 9, -1})
            QVERIFY_EXCEPTION_THROWN(SetInformation(session, key, L"x"), EngineError);
        QCOMPARE(SecurityInfo(session, UnsavedChanges), 0);
        QCOMPARE(SetInformation(session, subject, L""), 1);
        QVERIFY(session.document().document.trailerKey("/Info").getKey("/Subject").isNull());
    }

    void keepsATrailerEntryThatIsAllThatChanged()
    {
        for (const bool streams : {false, true}) {
            const std::string plain = document("/Info 9 0 R /Other (gone)", "<< /Title (old) >>");
            Session session;
            QCOMPARE(LoadFromString(session, streams ? inObjectStreams(plain) : plain, {}), 1);
            Document& open = session.document().document;
            open.setTrailerKey("/Info", QPDFObjectHandle::newNull());
            session.document().readWhole();
            const std::string bytes = written(session, Writing::Append);
            Session again;
            QCOMPARE(LoadFromString(again, bytes, {}), 1);
            QCOMPARE(GetInformation(again, title), std::wstring());
            QVERIFY(again.document().document.trailerKey("/Other").isString());
            QCOMPARE(again.document().document.anyWarnings(), false);
        }
    }
};

QTEST_GUILESS_MAIN(TestEngineInformation)
#include "TestEngineInformation.moc"
