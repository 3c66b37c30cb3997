#include "KidGlimpse.h"

#include "engine/syntax/SyntaxScanner.h"

#include <cctype>
#include <climits>

namespace engine {

namespace {

/// Fast path: no /Pages, no /Kids, and each /Type is followed by its name, so this can only be a page. A
/// search for slashes is several times as fast as the scanner, which decides wherever this says no; the trees
/// of books spend most of their time here.
bool isPlainPage(std::string_view text)
{
    if (!text.starts_with("<<"))
        return false;
    for (std::size_t slash = text.find('/'); slash != text.npos; slash = text.find('/', slash + 1)) {
        const std::string_view rest = text.substr(slash + 1);
        if (rest.starts_with("Pages") || rest.starts_with("Kids"))
            return false;
        if (!rest.starts_with("Type"))
            continue;
        const std::string_view behind = rest.substr(std::string_view("Type").size());
        const bool isValue = behind.starts_with("/") || behind.starts_with(" /");
        const bool isOtherName =
            !behind.empty() && std::isalnum(static_cast<unsigned char>(behind.front())) != 0;
        if (!isValue && !isOtherName) // such as /Type1
            return false;
    }
    return true;
}

} // namespace

std::optional<KidGlimpse> glimpseOf(std::string_view text)
{
    if (text.find('#') != text.npos) // escapes in names, good or bad
        return std::nullopt;
    if (isPlainPage(text))
        return KidGlimpse{KidKind::Page, std::nullopt};
    std::string_view kids;
    std::string_view type;
    std::string_view count;
    DictionaryScanner scanner(text);
    while (const auto entry = scanner.next()) {
        std::string_view* const value = entry->key == "Kids"    ? &kids
                                        : entry->key == "Type"  ? &type
                                        : entry->key == "Count" ? &count
                                                                : nullptr;
        if (value != nullptr && !value->empty())
            return std::nullopt;
        if (value != nullptr)
            *value = entry->value;
    }
    if (scanner.odd() || (!kids.empty() && !kids.starts_with('[')) ||
        (!type.empty() && !type.starts_with('/')))
        return std::nullopt;
    const auto number = wholeInteger(count);
    return KidGlimpse{!kids.empty()      ? KidKind::Node
                      : type == "/Pages" ? KidKind::Neither
                                         : KidKind::Page,
                      number && *number <= INT_MAX ? std::optional(static_cast<int>(*number)) : std::nullopt};
}

} // namespace engine
