#pragma once

#include "recorder/RecorderControl.h"

#include <QStringList>

#include <dlfcn.h>

#include <string>

/// The recording library, open and reset for as long as the object lives. Binding objects made from path()
/// share its log:
///
///     Recorder recorder;
///     recorder.returns("PageCount", 10);
///     TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
///     recorder.takeLog(); // "CreateLibrary()"
///     library.SetPageMode(4);
///     QCOMPARE(recorder.takeLog(), QStringList{"SetPageMode(4)"});
class Recorder
{
public:
    explicit Recorder(const char* file = RECORDER_FILE) : m_file(dlopen(file, RTLD_NOW | RTLD_LOCAL))
    {
        if (m_file == nullptr)
            qFatal("The recording library does not open: %s", dlerror());
        reset();
    }
    ~Recorder() { dlclose(m_file); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The file, as the binding's constructor takes it.
    static std::wstring path() { return QString(RECORDER_FILE).toStdWString(); }

    /// Forgets the log and all that was set.
    void reset() { function<decltype(TPLRecorderReset)>("TPLRecorderReset")(); }

    /// The calls recorded since the last time.
    QStringList takeLog()
    {
        const QString log = function<decltype(TPLRecorderLog)>("TPLRecorderLog")();
        function<decltype(TPLRecorderClearLog)>("TPLRecorderClearLog")();
        return log.split('\n', Qt::SkipEmptyParts);
    }

    /// What `call` gives back from now on; see RecorderControl.h for `call` and for several values.
    void returns(const char* call, double number)
    {
        function<decltype(TPLRecorderReturnNumber)>("TPLRecorderReturnNumber")(call, number);
    }
    void returns(const char* call, const std::wstring& text)
    {
        function<decltype(TPLRecorderReturnWide)>("TPLRecorderReturnWide")(call, text.data(),
                                                                           static_cast<int>(text.size()));
    }
    void returns(const char* call, const std::string& bytes)
    {
        function<decltype(TPLRecorderReturnBytes)>("TPLRecorderReturnBytes")(call, bytes.data(),
                                                                             static_cast<int>(bytes.size()));
    }

    /// The countdown-th `call` from now on throws std::runtime_error.
    void throws(const char* call, int countdown = 1)
    {
        function<decltype(TPLRecorderThrow)>("TPLRecorderThrow")(call, countdown);
    }

private:
    template <class Function>
    Function* function(const char* name)
    {
        return reinterpret_cast<Function*>(dlsym(m_file, name));
    }

    void* m_file;
};
