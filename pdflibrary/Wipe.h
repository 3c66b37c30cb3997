#pragma once

#include <cstring>
#include <string>

/// Passwords do not stay in memory when they are no longer needed. The header stands alone, for hosts to use.
///
///     const engine::Wiped<wchar_t> password(engine::wideFromFileName(bytes));
///     library.LoadFromFile(name, password.text);
///
/// The library wipes the copies that it makes in the same way.
namespace engine {

/// A text that is overwritten at the end of its life. It must not have to grow: what it was would stay
/// behind. So it is filled once, or given room with reserve() first. It is neither copied nor moved; pass a
/// reference. One thread an object.
/// \tparam Character char, for bytes, or wchar_t, as the library takes texts.
template <class Character>
class Wiped
{
public:
    /// The secret, to be read as any string. Copies of it are not overwritten.
    std::basic_string<Character> text;

    Wiped() = default;
    /// \param secret is overwritten as well; what it was copied from is not.
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
