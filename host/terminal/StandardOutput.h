#pragma once

#include <stdexcept>
#include <string_view>

namespace host {

/// What a command was asked for cannot be printed.
class OutputError : public std::runtime_error
{
public:
    explicit OutputError(int problem);
    /// As "head" does when it has seen enough.
    bool readerHasGone() const;

private:
    int m_problem;
};

/// Prints what a command was asked for on standard output. Throws OutputError.
void printResult(std::string_view text);

/// Prints what a run tells of its documents on standard output. Nobody may be listening, so that writing fails is
/// no failure.
void printLines(std::string_view lines);

} // namespace host
