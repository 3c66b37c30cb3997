#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// Builds a record of numbers and byte strings, as it crosses between the program and its workers.
class RecordWriter
{
public:
    RecordWriter& add(std::int64_t number);
    RecordWriter& add(std::string_view bytes);
    RecordWriter& add(const char* bytes) { return add(std::string_view(bytes)); }
    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// Reads a record back in the same order. Once something does not fit, every read gives 0 or an empty string.
class RecordReader
{
public:
    explicit RecordReader(std::string_view bytes) : m_rest(bytes) {}
    std::int64_t number();
    std::string text();
    /// True when all reads fitted and nothing is left over.
    bool complete() const { return m_fits && m_rest.empty(); }

private:
    bool take(void* into, std::size_t size);

    std::string_view m_rest;
    bool m_fits = true;
};

} // namespace host
