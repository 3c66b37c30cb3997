#include "pdflibrary/FileNameCodec.h"
#include "support/Rows.h"

#include <QtTest>

#include <random>

using namespace engine;

class TestFileNameCodec : public QObject
{
    Q_OBJECT

private slots:
    void decodesUtf8AndKeepsOtherBytes_data()
    {
        const Rows<QByteArray, std::wstring> row;
        row("empty", {}, {});
        row("ascii", "a/b.pdf", L"a/b.pdf");
        row("two bytes", "h\xc3\xb4tel", L"h\u00f4tel");
        row("three bytes", "\xe6\x96\x87", L"\u6587");
        row("four bytes", "\xf0\x9f\x93\x84", L"\U0001F4C4");
        row("last character", "\xf4\x8f\xbf\xbf", L"\U0010FFFF");
        row("latin 1", "h\xf4tel", std::wstring({L'h', wchar_t(0xdcf4), L't', L'e', L'l'}));
        row("cut short", "\xe6\x96", std::wstring({wchar_t(0xdce6), wchar_t(0xdc96)}));
        row("overlong", "\xc0\xaf", std::wstring({wchar_t(0xdcc0), wchar_t(0xdcaf)}));
        row("surrogate", "\xed\xb2\x80", std::wstring({wchar_t(0xdced), wchar_t(0xdcb2), wchar_t(0xdc80)}));
        row("beyond Unicode", "\xf4\x90\x80\x80",
            std::wstring({wchar_t(0xdcf4), wchar_t(0xdc90), wchar_t(0xdc80), wchar_t(0xdc80)}));
    }

    void decodesUtf8AndKeepsOtherBytes()
    {
        const auto [bytes, wide] = Rows<QByteArray, std::wstring>::current();
        QCOMPARE(wideFromFileName(bytes.toStdString()), wide);
        QCOMPARE(QByteArray::fromStdString(fileNameFromWide(wide)), bytes);
    }

    void bringsAnyBytesBack()
    {
        // Mostly bytes that begin or continue sequences, so that nearly right ones occur.
        std::mt19937 random(1);
        for (int round = 0; round < 20000; ++round) {
            std::string bytes(random() % 12, ' ');
            for (char& byte : bytes)
                byte = static_cast<char>(random() % 4 == 0 ? random() : 0x80 | (random() & 0x7f));
            QCOMPARE(fileNameFromWide(wideFromFileName(bytes)), bytes);
        }
    }

    void replacesWhatIsNoCharacter()
    {
        for (const char32_t code : {0xd800u, 0xdc00u, 0xdc7fu, 0xdd00u, 0xdfffu, 0x110000u, 0xffffffffu})
            QCOMPARE(fileNameFromWide(std::wstring(1, static_cast<wchar_t>(code))),
                     std::string("\xef\xbf\xbd"));
    }
};

QTEST_GUILESS_MAIN(TestFileNameCodec)
#include "TestFileNameCodec.moc"
