#include "StandardOutput.h"

#include "host/files/FileDescriptor.h"

#include <unistd.h>

#include <cerrno>

namespace host {

OutputError::OutputError(int problem)
    : std::runtime_error("standard output cannot be written: " + systemError(problem)), m_problem(problem)
{}

bool OutputError::readerHasGone() const
{
    return m_problem == EPIPE;
}

void printResult(std::string_view text)
{
    if (!writeAll(STDOUT_FILENO, text.data(), text.size()))
        throw OutputError(errno);
}

void printLines(std::string_view lines)
{
    writeAll(STDOUT_FILENO, lines.data(), lines.size());
}

} // namespace host
