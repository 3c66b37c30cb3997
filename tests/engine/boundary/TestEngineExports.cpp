#include "support/documents/PdfBuilder.h"
#include "support/engine/LoadedLibrary.h"
#include "support/folders/Files.h"

#include "pdflibrary/ErrorCodes.h"

#include <QtTest>

#include <dlfcn.h>

#include <climits>
#include <cstring>

using engine::ErrorCode;

namespace {

const QSet<QString> infrastructure{"CreateLibrary",         "ReleaseLibrary", "CreateBuffer",
                                   "AddToBuffer",           "ReleaseBuffer",  "StringResultLength",
                                   "AnsiStringResultLength"};

const char* const leaveOption = "leave-without-closing";

/// Ends the program with a document open and the instance never released, as a host may that gives up.
[[noreturn]] void leaveWithoutClosing()
{
    static auto* const library = new LoadedLibrary; // static: for the leak check it is in use
    const bool opened = library->LoadFromString(PdfBuilder::simple(), L"") == 1 &&
                        library->LoadFromString(PdfBuilder::simple(), L"") == 1 &&
                        library->RemoveDocument(1) == 1 && library->PageCount() > 0;
    std::exit(opened ? 0 : 1);
}

/// What of one list the other one lacks, for the messages of a failed comparison.
QString lacking(const QSet<QString>& those, const QSet<QString>& there)
{
    QStringList names = (there - those).values();
    names.sort();
    return names.join(", ");
}

/// Calls any operation with zeros and empty strings.
template <class Result, class... Parameters>
Result callEmpty(LoadedLibrary& library, Result (TelvarPDFLibraryCPDylibCPP1311::*operation)(Parameters...))
{
    return (library.*operation)(std::remove_cvref_t<Parameters>()...);
}

/// The functions around the operations, called by hand, with an instance of their own.
struct BufferCalls
{
    LoadedLibrary library;
    int (*open)() = library.function<int()>("TPLCreateLibrary");
    void (*close)(int) = library.function<void(int)>("TPLReleaseLibrary");
    char* (*create)(int, int) = library.function<char*(int, int)>("TPLCreateBuffer");
    void (*add)(int, char*, const char*,
                int) = library.function<void(int, char*, const char*, int)>("TPLAddToBuffer");
    void (*release)(int, char*) = library.function<void(int, char*)>("TPLReleaseBuffer");
    int (*load)(int, const char*,
                char*) = library.function<int(int, const char*, char*)>("TPLLoadFromString");
    int (*lastError)(int) = library.function<int(int)>("TPLLastErrorCode");
    const int instance = open();

    ErrorCode error() const { return ErrorCode(lastError(instance)); }
    ~BufferCalls() { close(instance); }
};

} // namespace

class TestEngineExports : public QObject
{
    Q_OBJECT

private slots:
    void survivesAnExitWithOpenDocuments()
    {
        QCOMPARE(QProcess::execute("/proc/self/exe", {leaveOption}), 0);
    }

    void exportsTheTableAndNothingElse()
    {
        QSet<QString> expected = infrastructure;
        for (const QByteArray& line : bytesOf(TEST_DATA_DIR "/operations.txt").trimmed().split('\n'))
            expected << QString(line.mid(2)).section('(', 0, 0).trimmed();
        QCOMPARE(expected.size(), 849 + 7);
        QProcess nm;
        nm.start("nm", {"-D", "--defined-only", "--format=posix", ENGINE_FILE});
        QVERIFY2(nm.waitForFinished(), qPrintable(nm.errorString()));
        QSet<QString> found;
        for (const QByteArray& line : nm.readAllStandardOutput().trimmed().split('\n')) {
            QVERIFY2(line.startsWith("TPL"), line);
            found << line.mid(3, line.indexOf(' ') - 3);
        }
        QCOMPARE(lacking(found, expected), QString());
        QCOMPARE(lacking(expected, found), QString());
    }

    void survivesMisuse()
    {
        LoadedLibrary library;
        auto* const create = library.function<int()>("TPLCreateLibrary");
        auto* const release = library.function<void(int)>("TPLReleaseLibrary");
        auto* const pageCount = library.function<int(int)>("TPLPageCount");
        auto* const version = library.function<wchar_t*(int)>("TPLLibraryVersion");
        auto* const length = library.function<int(int)>("TPLStringResultLength");
        for (const int unknown : {0, -1, INT_MAX}) {
            QCOMPARE(pageCount(unknown), 0);
            QCOMPARE(version(unknown), nullptr);
            QCOMPARE(length(unknown), 0);
            release(unknown);
        }
        const int one = create();
        QVERIFY(one > 0);
        QVERIFY(version(one) != nullptr);
        QVERIFY(length(one) > 5);
        QCOMPARE(pageCount(one), 0);
        QCOMPARE(length(one), 0);
        release(one);
        release(one);
        QCOMPARE(version(one), nullptr);
        QVERIFY(create() != one);
    }

    void guardsItsBuffers()
    {
        const BufferCalls engine;
        const int one = engine.instance;
        QVERIFY(engine.create(one, -1) == nullptr && engine.create(0, 10) == nullptr);
        char outside[] = "not a buffer";
        engine.add(one, outside, "xxxx", 4);
        QCOMPARE(outside, "not a buffer");
        engine.release(one, outside);
        engine.release(one, nullptr);
        QCOMPARE(engine.load(one, nullptr, nullptr), 0);
        QCOMPARE(engine.error(), ErrorCode::EmptyFile);
        QCOMPARE(engine.load(one, PdfBuilder::simple().c_str(), outside), 0);
        QCOMPARE(engine.error(), ErrorCode::BadArgument);
        engine.create(one, 1000); // goes with its instance
    }

    void takesABufferInPieces()
    {
        const BufferCalls engine;
        const BufferCalls other;
        const int one = engine.instance;
        const std::string bytes = PdfBuilder::simple();
        const int size = static_cast<int>(bytes.size());
        char* const buffer = engine.create(one, size);
        engine.add(one, buffer, bytes.data(), 100);
        other.add(other.instance, buffer, "wrong", 5);
        engine.add(one, buffer, nullptr, 5);
        engine.add(one, buffer, bytes.data(), -5);
        engine.add(one, buffer, (bytes + "beyond").data() + 100, size - 100 + 6);
        QCOMPARE(engine.load(one, buffer, nullptr), 1);
        engine.release(one, buffer);
        engine.release(one, buffer);

        // A wide string belongs to the library once a call had it.
        char* const password = engine.create(one, 8);
        engine.add(one, password, "\0\0\0a\0\0\0b", 8);
        QCOMPARE(engine.load(one, bytes.c_str(), password), 1);
        QCOMPARE(engine.load(one, bytes.c_str(), password), 0);
    }

    void saysOfTheRestThatItIsNotAvailable()
    {
        LoadedLibrary library;
        QVERIFY(library.LibraryLoaded());
        QCOMPARE(library.LoadFromString(PdfBuilder::simple(), L""), 1);
        QSet<QString> available{"SecurityInfo"}; // it has three items and says so of all others
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    {                                                                                                        \
        library.DocumentCount(); /* succeeds */                                                              \
        const auto result = callEmpty(library, &TelvarPDFLibraryCPDylibCPP1311::Name);                       \
        if (library.LastErrorCode() != static_cast<int>(ErrorCode::NotAvailable))                            \
            available << #Name;                                                                              \
        else                                                                                                 \
            QCOMPARE(result, std::remove_cvref_t<decltype(result)>());                                       \
    }
#include "pdflibrary/operations.def"
#undef TPL_OP
        // The manual describes exactly the operations that there are, one table row each.
        QSet<QString> described;
        QRegularExpressionMatchIterator rows =
            QRegularExpression("^\\| `([A-Za-z]+)\\(", QRegularExpression::MultilineOption)
                .globalMatch(bytesOf(SOURCE_DIR "/docs/engine.md"));
        while (rows.hasNext())
            described << rows.next().captured(1);
        QVERIFY2(described.contains(available),
                 qPrintable("not described: " + lacking(described, available)));
        QVERIFY2(available.contains(described), qPrintable("not there: " + lacking(available, described)));
    }

    void describesEveryErrorCode()
    {
        const QByteArray manual = bytesOf(SOURCE_DIR "/docs/engine.md");
        for (const engine::ErrorText& entry : engine::errorTexts) {
            const QByteArray row = "| " + QByteArray::number(static_cast<int>(entry.code)) + " | " +
                                   QByteArray(entry.text.data(), static_cast<int>(entry.text.size())) + " |";
            QVERIFY2(manual.contains(row), row);
        }
    }

    void canBeUnloaded()
    {
        {
            LoadedLibrary library;
            QCOMPARE(library.LoadFromString(PdfBuilder::simple(), L""), 1);
            QVERIFY(!library.GetInstalledFontsByCharset(2, 1).empty());
            void* const loaded = dlopen(ENGINE_FILE, RTLD_LAZY | RTLD_NOLOAD);
            QVERIFY(loaded != nullptr);
            dlclose(loaded);
        }
        QCOMPARE(dlopen(ENGINE_FILE, RTLD_LAZY | RTLD_NOLOAD), nullptr);
    }
};

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], leaveOption) == 0)
        leaveWithoutClosing();
    QCoreApplication application(argc, argv);
    TestEngineExports test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestEngineExports.moc"
