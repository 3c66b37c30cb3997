#pragma once

#include <optional>
#include <string_view>

namespace engine {

/// What a kid of the page tree is: what is no dictionary, or a node without kids, is neither.
enum class KidKind { Page, Node, Neither };

/// What the bytes of an unread kid show without parsing: adding up a large tree must not read every page.
struct KidGlimpse
{
    KidKind kind;
    std::optional<int> count; ///< /Count of a node, where it can be right.
};

/// \param text the kid's value as it stands in the file.
/// \returns nothing when the kid has to be read to tell.
std::optional<KidGlimpse> glimpseOf(std::string_view text);

} // namespace engine
