#pragma once

#include "host/files/FileDescriptor.h"
#include "host/plan/DocumentJob.h"

#include <QJsonObject>

#include <map>
#include <string>

namespace host {

/// The report of a run: a JSON object a line, in the order of the input, each line written at once and whole.
/// Between them stand the lines of documents that are about to be replaced, with the status "begun". The first
/// line and the last tell of the run itself; of a run that was killed there is no last one.
/// It is locked while the object lives: of two runs with one report, the second is refused.
class Report
{
public:
    struct Line
    {
        std::string file;
        /// Empty when there is none.
        std::string output;
        DocumentResult result;
    };

    enum class Start { New, Continue };

    /// In bytes; a file with a longer one is no report.
    static constexpr std::size_t longestLine = 1 << 20;

    /// Stands for standard output in the place of a path. That is not locked, and what is in it stays.
    static constexpr char standardOutput[] = "-";

    /// Takes the file for this run, and changes nothing in it. Throws UsageError when another run has it.
    Report(const std::string& path, Start start);
    /// Removes a file that was made and never begun.
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    /// Empties the file, or goes on behind what an earlier run has written. The folder that it lies in may
    /// have been made since. Throws UsageError when that is not possible.
    /// \param about what there is to tell of the run, for the first line.
    void begin(QJsonObject about);
    /// In a process that was forked off: the file is left to others when this run ends, though this process
    /// may live a little longer. Of what it holds, only `announce` may be used from then on. \returns the
    /// file's descriptor, -1 when there is nothing to announce in.
    int leave();
    /// Writes at once that a document is about to be replaced, with the line that will follow, and waits
    /// until that is on the disk: should both this process and the run be killed, or the power fail, the
    /// report still has what undoing takes. Only in a regular file. Throws std::runtime_error when it
    /// cannot be written.
    void announce(const Line& line);

    /// Takes the line of document `index`; it is written as soon as those before it are.
    void add(std::size_t index, const Line& line) { add(index, toJson(line)); }
    /// The same with the line as it is to be written, empty for none.
    void add(std::size_t index, std::string line);
    /// Writes what still waits for a document that was not done, and the last line.
    /// \param counts what became of the run.
    void end(QJsonObject counts);

    /// What the user should know once it is begun; may be empty.
    const std::string& doubt() const { return m_doubt; }
    /// Empty, or why the report is incomplete.
    const std::string& problem() const { return m_problem; }

    /// Whether a line is the first or last one, which tell of no document.
    static bool isAboutRun(const QJsonObject& line);
    /// One line, with its line feed.
    static std::string toJson(const Line& line) { return toJson(line, nameOf(line.result.status)); }

private:
    void open(int flags);
    void lock();
    bool isRegular() const;
    bool isStandardOutput() const { return m_path == standardOutput; }
    void write(const std::string& line);
    static std::string toJson(const Line& line, const char* status);
    void dropCutOffLine();

    std::string m_path;
    Start m_start;
    FileDescriptor m_file;
    bool m_isNew = false; ///< Made, and not begun yet.
    std::size_t m_next = 0;
    std::map<std::size_t, std::string> m_waiting;
    std::string m_doubt;
    std::string m_problem;
};

} // namespace host
