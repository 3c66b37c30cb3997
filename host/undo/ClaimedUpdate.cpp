#include "ClaimedUpdate.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <string_view>
#include <utility>

namespace host {

namespace {

const std::int64_t longestEnd = 64;       // "startxref", a number, "%%EOF" and their line feeds
const std::int64_t furthestHeader = 1024; // offsets count from it
const std::int64_t longestSection = 4 << 20;
const std::int64_t mostSpace = 64; // between the place that a document names and its cross-reference
const std::int64_t step = 64 << 10;
const std::string lastWord = "startxref";

/// The number behind a place and white space, and what follows it; -1 for none.
std::pair<std::int64_t, std::string_view> numberBehind(std::string_view text, std::size_t place)
{
    place = std::min(text.find_first_not_of("\r\n\t ", place), text.size());
    std::int64_t number = -1;
    const auto [behind, problem] = std::from_chars(text.data() + place, text.data() + text.size(), number);
    return {number, text.substr(static_cast<std::size_t>(behind - text.data()))};
}

} // namespace

std::string ClaimedUpdate::bytesOf(int file, std::int64_t begin, std::int64_t end)
{
    std::string bytes(static_cast<std::size_t>(end - begin), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            pread(file, bytes.data() + done, bytes.size() - done, begin + static_cast<std::int64_t>(done));
        if (count == 0 || (count < 0 && errno != EINTR))
            return {};
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return bytes;
}

bool ClaimedUpdate::isOne() const
{
    const auto start = section();
    if (!start || *start < m_begin - furthestHeader || *start >= m_end)
        return false;
    const std::string bytes = bytesOf(m_file, std::max({*start, m_begin, m_end - longestSection}), m_end);
    if (bytes.find("/Prev ") == bytes.npos)
        return replacesTrailer();
    const std::int64_t word = lastBefore(lastWord);
    if (word < 0)
        return false;
    const std::string end = bytesOf(m_file, word, std::min(m_begin, word + longestEnd));
    return leadsTo(numberBehind(end, lastWord.size()).first, bytes);
}

/// Where its last lines say that its cross-reference stands.
std::optional<std::int64_t> ClaimedUpdate::section() const
{
    const std::string bytes = bytesOf(m_file, std::max(m_begin, m_end - longestEnd), m_end);
    const std::size_t place = bytes.rfind("\n" + lastWord + "\n");
    if (place == bytes.npos)
        return std::nullopt;
    const auto [offset, behind] = numberBehind(bytes, place + 1 + lastWord.size());
    return offset >= 0 && behind == "\n%%EOF\n" ? std::optional(offset) : std::nullopt;
}

/// The document may name a place a little before its cross-reference.
bool ClaimedUpdate::leadsTo(std::int64_t offset, const std::string& section) const
{
    const std::string_view key = "/Prev ";
    for (std::size_t place = section.find(key); place != section.npos; place = section.find(key, place + 1)) {
        const std::int64_t previous = numberBehind(section, place + key.size()).first;
        if (offset >= 0 && previous >= offset && previous - offset <= mostSpace)
            return true;
    }
    return false;
}

/// As the update of a damaged document does, which brings a cross-reference of all objects.
bool ClaimedUpdate::replacesTrailer() const
{
    const std::string bytes = bytesOf(m_file, m_begin, std::min(m_end, m_begin + longestEnd));
    const auto [number, behind] = numberBehind(bytes, 0);
    const auto [generation, word] = numberBehind(behind, 0);
    return number > 0 && generation >= 0 && word.starts_with(" obj") && lastBefore("trailer") >= 0;
}

/// Where a word stands last in the document before it; -1 when it does not.
std::int64_t ClaimedUpdate::lastBefore(const std::string& word) const
{
    const auto overlap = static_cast<std::int64_t>(word.size()) - 1;
    for (std::int64_t end = m_begin; end > 0; end -= step) {
        const std::int64_t begin = std::max<std::int64_t>(0, end - step);
        const std::string bytes = bytesOf(m_file, begin, std::min(m_begin, end + overlap));
        if (const std::size_t place = bytes.rfind(word); place != bytes.npos)
            return begin + static_cast<std::int64_t>(place);
    }
    return -1;
}

} // namespace host
