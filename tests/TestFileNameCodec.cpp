#include "engine/FileNameCodec.h"

#include <QtTest>

#include <random>

using namespace engine;

Q_DECLARE_METATYPE(std::wstring)

class TestFileNameCodec : public QObject
{
    Q_OBJECT

private slots:
    void decodesUtf8AndKeepsOtherBytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<std::wstring>("wide");
        QTest::newRow("empty") << QByteArray() << std::wstring();
        QTest::newRow("ascii") << QByteArray("a/b.pdf") << std::wstring(L"a/b.pdf");
        QTest::newRow("two bytes") << QByteArray("h\xc3\xb4tel") << std::wstring(L"h\u00f4tel");
        QTest::newRow("three bytes") << QByteArray("\xe6\x96\x87") << std::wstring(L"\u6587");
        QTest::newRow("four bytes") << QByteArray("\xf0\x9f\x93\x84") << std::wstring(L"\U0001F4C4");
        QTest::newRow("last character") << QByteArray("\xf4\x8f\xbf\xbf") << std::wstring(L"\U0010FFFF");
        QTest::newRow("latin 1") << QByteArray("h\xf4tel")
                                 << std::wstring({L'h', wchar_t(0xdcf4), L't', L'e', L'l'});
        QTest::newRow("cut short") << QByteArray("\xe6\x96")
                                   << std::wstring({wchar_t(0xdce6), wchar_t(0xdc96)});
        QTest::newRow("overlong") << QByteArray("\xc0\xaf")
                                  << std::wstring({wchar_t(0xdcc0), wchar_t(0xdcaf)});
        QTest::newRow("surrogate") << QByteArray("\xed\xb2\x80")
                                   << std::wstring({wchar_t(0xdced), wchar_t(0xdcb2), wchar_t(0xdc80)});
        QTest::newRow("beyond Unicode")
            << QByteArray("\xf4\x90\x80\x80")
            << std::wstring({wchar_t(0xdcf4), wchar_t(0xdc90), wchar_t(0xdc80), wchar_t(0xdc80)});
    }

    void decodesUtf8AndKeepsOtherBytes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(std::wstring, wide);
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
