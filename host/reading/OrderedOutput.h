#pragma once

#include <cstddef>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

namespace host {

/// Prints texts in the order of their places, in whatever order they come. What waits for an earlier one goes
/// into a temporary file once it is too much for memory.
class OrderedOutput
{
public:
    /// Throws OutputError when it cannot be printed. \param out for standard output. \param error for
    /// standard error, safe to print.
    void add(std::size_t place, std::string out, std::string error = {});
    /// Prints what still waits for a place that nothing came for.
    void finish();

    /// How much waits in memory at most, in bytes.
    static constexpr std::size_t mostInMemory = 4 << 20;

private:
    struct Waiting
    {
        std::string bytes;
        long offset; ///< In the file; -1 for what is in memory.
        std::size_t outSize;
        std::size_t size;
    };

    void keep(std::size_t place, const std::string& out, const std::string& error);
    bool keepInFile(Waiting& waiting);
    void printNext();
    void readBack(Waiting& waiting);

    std::size_t m_next = 0;
    std::map<std::size_t, Waiting> m_waiting;
    std::size_t m_inMemory = 0;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file{nullptr, std::fclose};
};

} // namespace host
