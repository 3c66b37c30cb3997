#pragma once

#include "SyntaxScanner.h"
#include "engine/files/FileWindows.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

/// Reads values, objects and streams at known offsets of a file, strictly: what is the least unusual is given
/// up. Views that it returns are good until the next use of the windows.
class ObjectReader
{
public:
    explicit ObjectReader(FileWindows& file) : m_file(file) {}

    /// A value and what stands behind it, white space left out.
    struct Value
    {
        std::string_view text;
        std::string_view behind; ///< At least a few words, unless the file ends.
        std::int64_t behindOffset;

        bool isFollowedBy(std::string_view keyword) const { return SyntaxScanner(behind).keyword(keyword); }
    };

    /// The value at an offset, however long; nothing from 16 MB on.
    /// \param skipped how many bytes stand before the value at that offset.
    std::optional<Value> boundedValue(std::int64_t offset, std::size_t skipped = 0);

    /// The value of the indirect object that begins at an offset; nothing when another one does, or a stream.
    std::optional<std::string_view> object(std::int64_t offset, int number, int generation);

    struct Stream
    {
        Stream() = default;
        Stream(const Stream&) = delete; // the entries point into the dictionary
        Stream& operator=(const Stream&) = delete;

        std::string dictionary;
        DictionaryEntries entries;
        std::string_view data; ///< As it is stored.
    };

    /// The stream that begins at an offset. \returns false when another object does, or when it does not end
    /// where its /Length says.
    bool readStream(std::int64_t offset, int number, Stream& stream);

private:
    std::optional<Value> valueOfObject(std::int64_t offset, int number, int generation);

    FileWindows& m_file;
};

/// The offset of a stream's data, nothing unless the value is followed by "stream" and a proper line end.
std::optional<std::int64_t> streamDataOffset(const ObjectReader::Value& dictionary);

/// The whole number that a dictionary has for a key.
std::optional<std::int64_t> integerOf(const DictionaryEntries& entries, std::string_view key);

inline bool isNumberInRange(std::optional<std::int64_t> number, std::int64_t largest)
{
    return number && *number >= 0 && *number <= largest;
}

} // namespace engine
