#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace engine {

/// The buffers in which a caller of the library hands over its strings. Pointers that are not known are never
/// followed.
class Buffers
{
public:
    /// \returns null when `size` is negative or there is not that much memory.
    char* create(int size);
    /// Appends bytes to what the buffer holds, as many as still fit.
    void add(char* buffer, const char* source, int size);
    void release(char* buffer);

    /// The characters in a buffer that a call received as a wide string; empty for null. The buffer now
    /// belongs to the library and goes with `releaseTaken`. Throws BadArgument for an unknown pointer.
    std::wstring_view takeWide(char* buffer);
    /// The bytes that a call received as a byte string: a whole buffer, or else characters up to a NUL.
    std::string_view bytes(const char* text) const;
    void releaseTaken();

private:
    struct Buffer
    {
        std::unique_ptr<char[]> data;
        std::size_t capacity;
        std::size_t used = 0;
    };

    std::unordered_map<const char*, Buffer> m_buffers;
    std::vector<char*> m_taken;
};

} // namespace engine
