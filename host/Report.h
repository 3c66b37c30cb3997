#pragma once

#include "DocumentJob.h"
#include "FileDescriptor.h"

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

    /// Begins a new file. Throws UsageError when that is not possible.
    explicit Report(const std::string& path);

    /// Takes the line of document `index`; it is written as soon as those before it are.
    void add(std::size_t index, Line line);
    /// Writes what still waits for a document that was not done.
    void flush();

    /// Empty, or why the report is incomplete.
    const std::string& problem() const { return m_problem; }

    /// One line, with its line feed.
    static std::string toJson(const Line& line);

private:
    void write(const Line& line);

    std::string m_path;
    FileDescriptor m_file;
    std::size_t m_next = 0;
    std::map<std::size_t, Line> m_waiting;
    std::string m_problem;
};

} // namespace host
