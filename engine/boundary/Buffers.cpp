#include "Buffers.h"

#include "engine/files/EngineError.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace engine {

char* Buffers::create(int size)
{
    if (size < 0)
        return nullptr;
    const auto capacity = static_cast<std::size_t>(size);
    std::unique_ptr<char[]> data(new (std::nothrow) char[std::max<std::size_t>(capacity, 1)]);
    char* const buffer = data.get();
    if (buffer != nullptr)
        m_buffers.emplace(buffer, Buffer{std::move(data), capacity});
    return buffer;
}

void Buffers::add(char* buffer, const char* source, int size)
{
    const auto found = m_buffers.find(buffer);
    if (found == m_buffers.end() || source == nullptr || size <= 0)
        return;
    Buffer& target = found->second;
    const std::size_t fitting = std::min(static_cast<std::size_t>(size), target.capacity - target.used);
    std::memcpy(target.data.get() + target.used, source, fitting);
    target.used += fitting;
}

void Buffers::release(char* buffer)
{
    m_buffers.erase(buffer);
}

std::wstring_view Buffers::takeWide(char* buffer)
{
    if (buffer == nullptr)
        return {};
    const auto found = m_buffers.find(buffer);
    if (found == m_buffers.end())
        throw EngineError(ErrorCode::BadArgument, "a wide string that is no buffer of this instance");
    m_taken.push_back(buffer);
    return {reinterpret_cast<const wchar_t*>(buffer), found->second.used / sizeof(wchar_t)};
}

std::string_view Buffers::bytes(const char* text) const
{
    if (text == nullptr)
        return {};
    const auto found = m_buffers.find(text);
    return found != m_buffers.end() ? std::string_view(text, found->second.used) : std::string_view(text);
}

void Buffers::releaseTaken()
{
    for (char* const buffer : m_taken) {
        if (const auto found = m_buffers.find(buffer); found != m_buffers.end())
            explicit_bzero(buffer, found->second.used); // it may be a password
        release(buffer);
    }
    m_taken.clear();
}

} // namespace engine
