#include "DocumentTail.h"

#include "engine/files/ByteSource.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

namespace engine {

namespace {

constexpr std::string_view keyword = "startxref";
constexpr std::string_view whitespace("\0\t\n\f\r ", 6);

// Bytes read behind the word: room for line ends, the number, line ends and the end-of-file marker.
constexpr std::size_t reach = 128;

// Bytes before the end in which libqpdf looks for the word.
constexpr std::uint64_t searchedByReaders = 1054;

std::size_t skipped(std::string_view text, std::size_t position)
{
    return std::min(text.find_first_not_of(whitespace, position), text.size());
}

std::optional<DocumentTail> tailAt(std::string_view text, std::size_t position, std::uint64_t base)
{
    const std::size_t number = skipped(text, position + keyword.size());
    DocumentTail tail;
    const auto [end, error] =
        std::from_chars(text.data() + number, text.data() + text.size(), tail.startxref);
    if (error != std::errc() || number == position + keyword.size())
        return std::nullopt;
    const std::size_t behind = static_cast<std::size_t>(end - text.data());
    const std::size_t marker = skipped(text, behind);
    tail.keyword = base + position;
    tail.end = base + (text.substr(marker).starts_with("%%EOF") ? marker + 5 : behind);
    return tail;
}

} // namespace

std::optional<DocumentTail> findDocumentTail(const ByteSource& source)
{
    std::uint64_t end = source.size();
    for (std::uint64_t step = 2048; end > 0; step = 65536) {
        const std::uint64_t begin = end - std::min(end, step);
        const std::string text = source.text(begin, static_cast<std::size_t>(end - begin) + reach);
        std::size_t position = text.rfind(keyword, static_cast<std::size_t>(end - begin) - 1);
        while (position != std::string::npos) {
            if (const auto tail = tailAt(text, position, begin))
                return tail;
            position = position == 0 ? std::string::npos : text.rfind(keyword, position - 1);
        }
        end = begin;
    }
    return std::nullopt;
}

bool hasObjectsBehind(const ByteSource& source, const DocumentTail& tail)
{
    constexpr std::size_t step = 65536;
    constexpr std::string_view word = " obj";
    for (std::uint64_t offset = tail.end; offset < source.size(); offset += step)
        if (source.text(offset, step + word.size() - 1).find(word) != std::string::npos)
            return true;
    return false;
}

std::uint64_t documentEnd(const ByteSource& source)
{
    const auto tail = findDocumentTail(source);
    if (!tail || source.size() - tail->keyword < searchedByReaders)
        return source.size();
    // Objects in the tail are an update whose end is lost: they belong to the document.
    return hasObjectsBehind(source, *tail) ? source.size() : tail->end;
}

} // namespace engine
