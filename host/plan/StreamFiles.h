#pragma once

#include "host/workers/SignalMask.h"
#include "host/workers/StopSignal.h"

#include <string>

namespace host {

/// How a document's name is told: standard input is called that.
std::string shownName(const std::string& name);

/// Standard input and output as files, for what works on files only. A folder that only its owner can enter
/// holds the document that was read and the result that is going to be printed. From construction on a stop
/// signal waits until the folder is gone again, or a run takes it.
class StreamFiles
{
public:
    /// Throws UsageError when the folder cannot be made. TMPDIR says where it lies.
    StreamFiles();
    ~StreamFiles();
    StreamFiles(const StreamFiles&) = delete;
    StreamFiles& operator=(const StreamFiles&) = delete;

    /// Reads standard input to its end into document(). Throws UsageError, also for a terminal, for what is
    /// larger than a document can be, and when a stop signal comes.
    void readInput();
    /// Throws UsageError when standard output is a terminal.
    static void checkOutput();
    /// Prints result(), if there is one, and removes the folder before that. Throws OutputError.
    void printResult();

    std::string document() const { return m_folder + "/document.pdf"; }
    std::string result() const { return m_folder + "/result.pdf"; }

private:
    void waitForInput() const;
    void remove();

    std::string m_folder;
    SignalMask m_signalsBefore;
    StopSignal m_stop;
};

} // namespace host
