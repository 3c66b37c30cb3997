#pragma once

#include <cstdint>
#include <map>
#include <string_view>

namespace engine {

class ByteSource;

/// What the bytes of a file show of objects, trailers and the like wherever they stand: in streams, strings
/// and comments too. So it may count too much, but it overlooks nothing that another reader could find.
class FileScan
{
public:
    struct Definition
    {
        int generation;
        std::uint64_t offset; ///< In the file.
    };

    /// Reads all of the source once.
    /// \throws EngineError with ReadFailed.
    explicit FileScan(const ByteSource& source);

    /// Where objects begin, by their numbers.
    const std::map<int, Definition>& definitions() const { return m_definitions; }

    /// True when an object begins in several places, or the begin or end of one seems to be damaged.
    bool hasOddObjects() const;

    int trailers() const { return m_trailers; }
    int ends() const { return m_ends; }
    int encryptions() const { return m_encryptions; }

    /// Whether there are object streams, cross-reference streams, or the entry by which a table names one.
    bool hasCompressedParts() const { return m_compressedParts; }

    /// Whether there are the byte ranges of signatures.
    bool hasByteRanges() const { return m_byteRanges; }

private:
    void lookAt(std::string_view text, std::size_t position, std::uint64_t base);
    void lookAtName(std::string_view name);
    void lookAtObject(std::string_view text, std::size_t position, std::uint64_t base);
    void define(long long number, long long generation, std::uint64_t offset);

    std::map<int, Definition> m_definitions;
    long long m_objectEnds = 0;
    int m_trailers = 0;
    int m_ends = 0;
    int m_encryptions = 0;
    bool m_oddObjects = false;
    bool m_compressedParts = false;
    bool m_byteRanges = false;
};

} // namespace engine
