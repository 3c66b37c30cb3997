#pragma once

#include <cstring>
#include <string>

/// Passwords do not stay in memory when they are no longer needed. The header stands alone, for hosts to use.
namespace engine {

/// A text that is overwritten at the end of its life. It must not have to grow: what it was would stay behind.
template <class Character>
class Wiped
{
public:
    std::basic_string<Character> text;

    Wiped() = default;
    /// The argument is overwritten as well.
    explicit Wiped(std::basic_string<Character> secret) : text(secret) { overwrite(secret); }
    ~Wiped() { overwrite(text); }
    Wiped(const Wiped&) = delete;
    Wiped& operator=(const Wiped&) = delete;

private:
    static void overwrite(std::basic_string<Character>& characters)
    {
        explicit_bzero(characters.data(), characters.size() * sizeof(Character));
    }
};

} // namespace engine
