#pragma once

#include <array>
#include <cstdint>

namespace engine {

/// How PDF syntax takes a character.
enum class CharacterClass : std::uint8_t { Regular, Space, Delimiter };

inline constexpr std::array<CharacterClass, 256> characterClasses = [] {
    std::array<CharacterClass, 256> table{};
    for (const char character : {' ', '\n', '\r', '\t', '\f', '\0'})
        table[static_cast<unsigned char>(character)] = CharacterClass::Space;
    // Readers disagree about vertical tabs: nothing that begins with one is accepted.
    for (const char character : {'(', ')', '<', '>', '[', ']', '{', '}', '/', '%', '\v'})
        table[static_cast<unsigned char>(character)] = CharacterClass::Delimiter;
    return table;
}();

inline bool isRegular(char character)
{
    return characterClasses[static_cast<unsigned char>(character)] == CharacterClass::Regular;
}

inline bool isSpace(char character)
{
    return characterClasses[static_cast<unsigned char>(character)] == CharacterClass::Space;
}

inline bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

} // namespace engine
