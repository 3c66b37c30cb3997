#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace engine {

/// The buffers in which a caller of the library hands over its strings. A caller creates one, adds bytes to
/// it and names it in a call by its address. Pointers that are not known here are never followed, so a
/// caller's mistake is an error and no crash. One thread at a time, as the session that owns them.
class Buffers
{
public:
    /// A new, empty buffer.
    /// \param size bytes that it has room for; 0 is a buffer, too.
    /// \returns its address, which is also its name; null when `size` is negative or there is not that much
    ///     memory.
    char* create(int size);
    /// Appends bytes to what the buffer holds, as many as still fit. Nothing happens for an unknown buffer, a
    /// negative size or a null source.
    void add(char* buffer, const char* source, int size);
    /// Frees a buffer; an unknown one is ignored.
    void release(char* buffer);

    /// The characters in a buffer that a call received as a wide string; empty for null. The buffer now
    /// belongs to the library and goes with `releaseTaken`, and the view with it.
    /// \throws EngineError BadArgument for an unknown pointer.
    std::wstring_view takeWide(char* buffer);
    /// The bytes that a call received as a byte string: a whole buffer, or else characters up to a NUL; empty
    /// for null. The bytes stay the caller's; the view is valid during the call.
    std::string_view bytes(const char* text) const;
    /// Frees the buffers that takeWide() took over: to be called when the call ends.
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
