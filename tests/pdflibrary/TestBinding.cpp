#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "support/Recorder.h"
#include "support/Rows.h"
#include "support/folders/Files.h"

#include <QtTest>

#include <algorithm>
#include <optional>
#include <tuple>

using Library = TelvarPDFLibraryCPDylibCPP1311;

namespace {

QStringList lookedUp;
QList<QByteArray> opened;
int openMode = 0;
int closed = 0;

void forgetLoaderCalls()
{
    lookedUp.clear();
    opened.clear();
    closed = 0;
}

} // namespace

// The linker turns the binding's calls of the dynamic loader into these, and wants exactly these names.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real_dlopen(const char* file, int mode);
void* __real_dlsym(void* handle, const char* name);
int __real_dlclose(void* handle);

void* __wrap_dlopen(const char* file, int mode)
{
    opened.append(file);
    openMode = mode;
    return __real_dlopen(file, mode);
}

void* __wrap_dlsym(void* handle, const char* name)
{
    lookedUp.append(name);
    return __real_dlsym(handle, name);
}

int __wrap_dlclose(void* handle)
{
    ++closed;
    return __real_dlclose(handle);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

const QStringList infrastructure{
    "TPLCreateLibrary",      "TPLCreateBuffer",           "TPLAddToBuffer",   "TPLReleaseLibrary",
    "TPLStringResultLength", "TPLAnsiStringResultLength", "TPLReleaseBuffer",
};

// The letters of the operation list, from a member's C++ types.
template <class Type>
constexpr char letter = '?';
template <>
constexpr char letter<int> = 'i';
template <>
constexpr char letter<double> = 'd';
template <>
constexpr char letter<std::wstring> = 'W';
template <>
constexpr char letter<const std::wstring&> = 'W';
template <>
constexpr char letter<std::string> = 'B';
template <>
constexpr char letter<const std::string&> = 'B';

template <class Result, class... Parameters>
QString listEntry(const char* name, Result (Library::*)(Parameters...))
{
    static_assert(!std::is_reference_v<Result>);
    const char parameters[] = {letter<Parameters>..., '\0'};
    QString entry = QString("%1 %2").arg(letter<Result>).arg(name);
    return parameters[0] == '\0' ? entry : entry + QString("(%1)").arg(parameters);
}

QStringList operationList()
{
    return QString::fromLatin1(bytesOf(TEST_DATA_DIR "/operations.txt")).split('\n', Qt::SkipEmptyParts);
}

enum class Texts { WithoutNul, WithNul, Empty };

/// The arguments of one call, and the calls that the library should see because of them.
class Expectation
{
public:
    explicit Expectation(Texts texts) : m_texts(texts) {}

    int argument(const int*)
    {
        ++m_position;
        m_shown.append(QString::number(-7 * m_position));
        return -7 * m_position;
    }

    double argument(const double*)
    {
        ++m_position;
        m_shown.append(QString::number(m_position) + ".25");
        return m_position + 0.25;
    }

    std::wstring argument(const std::wstring*)
    {
        ++m_position;
        if (m_texts == Texts::Empty) {
            m_shown.append("null");
            return std::wstring();
        }
        std::wstring text = L"\x20ac\x1f600-" + std::to_wstring(m_position);
        if (m_texts == Texts::WithNul)
            text += L'\0';
        m_shown.append(QString("buffer %1 L\"\\u{20ac}\\u{1f600}-%2%3\"")
                           .arg(newBuffer(4 * static_cast<int>(text.size())))
                           .arg(m_position)
                           .arg(m_texts == Texts::WithNul ? "\\u{0}" : ""));
        return text;
    }

    std::string argument(const std::string*)
    {
        ++m_position;
        if (m_texts == Texts::Empty) {
            m_shown.append("\"\"");
            return std::string();
        }
        std::string text = "\xff-" + std::to_string(m_position);
        QString shown = QString("\"\\xff-%1").arg(m_position);
        if (m_texts == Texts::WithNul) {
            text += std::string("\0z", 2);
            const int buffer = newBuffer(static_cast<int>(text.size()));
            m_after.append(QString("ReleaseBuffer(buffer %1)").arg(buffer));
            shown = QString("buffer %1 ").arg(buffer) + shown + "\\x00z";
        }
        m_shown.append(shown + '"');
        return text;
    }

    QStringList calls(const QString& name, char result) const
    {
        QStringList all = m_before;
        all.append(name + '(' + m_shown.join(", ") + ')');
        all += m_after;
        if (result == 'W')
            all.append("StringResultLength()");
        if (result == 'B')
            all.append("AnsiStringResultLength()");
        return all;
    }

private:
    int newBuffer(int size)
    {
        m_before.append(QString("CreateBuffer(%1)").arg(size));
        m_before.append(QString("AddToBuffer(buffer %1, %2)").arg(++m_buffers).arg(size));
        return m_buffers;
    }

    Texts m_texts;
    int m_position = 0;
    int m_buffers = 0;
    QStringList m_shown;
    QStringList m_before;
    QStringList m_after;
};

template <class Value>
Value resultFor(Texts texts)
{
    if constexpr (std::is_same_v<Value, int>)
        return texts == Texts::Empty ? INT_MIN : INT_MAX;
    else if constexpr (std::is_same_v<Value, double>)
        return texts == Texts::Empty ? -0.1 : 1e300;
    else if (texts == Texts::Empty)
        return Value();
    else
        return Value({'r', '\0', texts == Texts::WithNul ? '\0' : '~'});
}

/// Calls one member and says what went wrong, if anything did.
template <class Result, class... Parameters>
QString exercise(Recorder& recorder, Library& library, const char* name,
                 Result (Library::*member)(Parameters...), Texts texts)
{
    recorder.reset();
    const auto wanted = resultFor<Result>(texts);
    recorder.returns(name, wanted);
    Expectation expectation(texts);
    // A braced list is evaluated left to right.
    const std::tuple<std::remove_cvref_t<Parameters>...> arguments{
        expectation.argument(static_cast<std::remove_cvref_t<Parameters>*>(nullptr))...};
    const Result result =
        std::apply([&](const auto&... each) { return (library.*member)(each...); }, arguments);
    const QStringList log = recorder.takeLog();
    const QStringList expected = expectation.calls(name, letter<Result>);
    if (log != expected)
        return QString("calls\n%1\ninstead of\n%2").arg(log.join('\n'), expected.join('\n'));
    return result == wanted ? QString() : QString("%1: another result").arg(name);
}

template <class Result, class... Parameters>
bool givesNothing(Library& library, Result (Library::*member)(Parameters...))
{
    return (library.*member)(std::remove_cvref_t<Parameters>()...) == Result();
}

} // namespace

class TestBinding : public QObject
{
    Q_OBJECT

private slots:
    void offersTheListedOperations()
    {
        QStringList members;
#define TPL_OP(Result, Name, Arguments, ...) members.append(listEntry(#Name, &Library::Name));
#include "pdflibrary/operations.def"
#undef TPL_OP
        QStringList listed = operationList();
        QCOMPARE(listed.size(), 849);
        std::sort(listed.begin(), listed.end());
        std::sort(members.begin(), members.end());
        QCOMPARE(members, listed);
    }

    void looksEveryFunctionUpInOrder()
    {
        QStringList expected;
        for (const QString& entry : operationList())
            expected.append("TPL" + entry.section(' ', 1).section('(', 0, 0));
        std::sort(expected.begin(), expected.end());
        expected += infrastructure;

        Recorder recorder;
        {
            forgetLoaderCalls();
            Library library(Recorder::path());
            QVERIFY(library.LibraryLoaded());
            QCOMPARE(lookedUp, expected);
            QCOMPARE(opened, QList<QByteArray>{RECORDER_FILE});
            QCOMPARE(openMode, RTLD_LAZY | RTLD_LOCAL);
        }
        QCOMPARE(closed, 1);
        QCOMPARE(recorder.takeLog(), (QStringList{"CreateLibrary()", "ReleaseLibrary()"}));
    }

    void carriesArgumentsAndResults()
    {
        Recorder recorder;
        Library library(Recorder::path());
        for (const Texts texts : {Texts::WithoutNul, Texts::WithNul, Texts::Empty}) {
            QString fault;
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    fault += exercise(recorder, library, #Name, &Library::Name, texts);
#include "pdflibrary/operations.def"
#undef TPL_OP
            QCOMPARE(fault, QString());
        }
    }

    void believesTheReportedLength()
    {
        for (const int length : {0, -5, 2, 4}) {
            Recorder recorder;
            Library library(Recorder::path());
            recorder.returns("GetInformation", std::wstring(L"a\0cd", 4));
            recorder.returns("SaveToString", std::string("a\0cd", 4));
            recorder.returns("StringResultLength", length);
            recorder.returns("AnsiStringResultLength", length);
            const auto size = static_cast<std::size_t>(std::max(length, 0));
            QVERIFY(library.GetInformation(1) == std::wstring(L"a\0cd", 4).substr(0, size));
            QVERIFY(library.SaveToString() == std::string("a\0cd", 4).substr(0, size));
        }
    }

    void isNotLoadedWithoutAllFunctions_data()
    {
        const Rows<QString, int, int> row;
        row("no such file", "/nowhere/library.dylib", 0, 0);
        row("not a library", TEST_DATA_DIR "/operations.txt", 0, 0);
        row("one operation missing", RECORDER_WITHOUT_OPERATION, 856, 1);
        row("one infrastructure function missing", RECORDER_WITHOUT_INFRASTRUCTURE, 856, 1);
    }

    void isNotLoadedWithoutAllFunctions()
    {
        const auto [file, lookUps, closings] = Rows<QString, int, int>::current();
        std::optional<Recorder> recorder;
        if (lookUps > 0)
            recorder.emplace(qPrintable(file));
        {
            forgetLoaderCalls();
            Library library(file.toStdWString());
            QVERIFY(!library.LibraryLoaded());
            QCOMPARE(lookedUp.size(), lookUps);
#define TPL_OP(Result, Name, Arguments, ...) QVERIFY2(givesNothing(library, &Library::Name), #Name);
#include "pdflibrary/operations.def"
#undef TPL_OP
            int isBuffer = 7;
            QVERIFY(library.StringParm(std::string("a\0b", 3), isBuffer) == nullptr && isBuffer == 0);
            QVERIFY(library.WideStringParm(L"text") == nullptr);
        }
        QCOMPARE(closed, closings);
        QVERIFY(!recorder || recorder->takeLog().isEmpty());
    }

    void releasesOnlyAnInstanceAboveZero()
    {
        for (const int instance : {0, -1, 1}) {
            Recorder recorder;
            recorder.returns("CreateLibrary", instance);
            QVERIFY(Library(Recorder::path()).LibraryLoaded());
            QCOMPARE(recorder.takeLog().size(), instance > 0 ? 2 : 1);
        }
    }

    void narrowsThePathToLowBytes()
    {
        Recorder recorder;
        std::wstring path = Recorder::path();
        for (wchar_t& character : path)
            character += 0x12300;
        QVERIFY(Library(path).LibraryLoaded());
        QVERIFY(!Library(L"h\x00f4tel\x1ff").LibraryLoaded());
        QCOMPARE(opened.last(), QByteArray("h\xf4tel\xff"));
    }

    void findsABareNameAsTheLoaderDoes()
    {
        Recorder recorder;
        // The loader knows a library that is already open by its own name.
        const QString name = QString(RECORDER_FILE).section('/', -1);
        QVERIFY(!Library(L"there is no such library.dylib").LibraryLoaded());
        QCOMPARE(Library(name.toStdWString()).LibraryLoaded(), true);
        QCOMPARE(opened.last(), name.toLatin1());
    }

    void attachesFurtherFunctions()
    {
        Recorder recorder;
        Library library(Recorder::path());
        QVERIFY(library.AttachFunction("TPLRecorderLog") != nullptr);
        QVERIFY(library.AttachFunction("TPLNoSuchFunction", true) == nullptr);
        QVERIFY(library.LibraryLoaded());
        QVERIFY(library.AttachFunction("TPLNoSuchFunction") == nullptr);
        QVERIFY(!library.LibraryLoaded());
    }

    void finishesAThrowingCall()
    {
        Recorder recorder;
        Library library(Recorder::path());
        recorder.throws("PageCount", 2);
        recorder.returns("PageCount", 3);
        QCOMPARE(library.PageCount(), 3);
        QVERIFY_EXCEPTION_THROWN(library.PageCount(), std::runtime_error);
        QCOMPARE(library.PageCount(), 3);
    }
};

QTEST_GUILESS_MAIN(TestBinding)
#include "TestBinding.moc"
