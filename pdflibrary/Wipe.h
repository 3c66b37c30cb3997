#pragma once

#include <cstring>
#include <string>

/// Passwords do not stay in memory when they are no longer needed. The header stands alone, for hosts to use.
namespace engine {

/// Overwrites what a text has room for, and empties it.
template <class Character>
void wipe(std::basic_string<Character>& text)
{
    text.resize(text.capacity());
    explicit_bzero(text.data(), text.size() * sizeof(Character));
    text.clear();
}

/// A text that is wiped at the end of its life.
template <class Text>
struct Wiped
{
    Text text;

    explicit Wiped(Text wiped) : text(std::move(wiped)) {}
    ~Wiped() { wipe(text); }
    Wiped(const Wiped&) = delete;
    Wiped& operator=(const Wiped&) = delete;
};

} // namespace engine
