#pragma once

#include "DocumentJob.h"
#include "host/files/FileDescriptor.h"

#include <map>
#include <string>

namespace host {

/// The report of a run: a JSON object a line, in the order of the input, each line written at once and whole.
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

    /// Begins a new file, or goes on behind what an earlier run has written. Throws UsageError when that is
    /// not possible.
    Report(const std::string& path, Start start);

    /// Takes the line of document `index`; it is written as soon as those before it are.
    void add(std::size_t index, const Line& line) { add(index, toJson(line)); }
    /// The same with the line as it is to be written, empty for none.
    void add(std::size_t index, std::string line);
    /// Writes what still waits for a document that was not done.
    void flush();

    /// Empty, or why the report is incomplete.
    const std::string& problem() const { return m_problem; }

    /// One line, with its line feed.
    static std::string toJson(const Line& line);

private:
    void write(const std::string& line);
    void dropCutOffLine();

    std::string m_path;
    FileDescriptor m_file;
    std::size_t m_next = 0;
    std::map<std::size_t, std::string> m_waiting;
    std::string m_problem;
};

} // namespace host
