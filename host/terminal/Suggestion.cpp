#include "Suggestion.h"

#include <algorithm>
#include <numeric>

namespace host::suggestion {

namespace {

const std::size_t longestWord = 64; // the work grows with the square of the length
const std::size_t shortestPart = 3; // shorter ones are in too many words

const char separators[] = "-_ ";

/// Letters in lower case, without what separates words.
std::string plain(std::string_view word)
{
    std::string text;
    for (const char each : word.substr(0, longestWord))
        if (each >= 'A' && each <= 'Z')
            text += static_cast<char>(each - 'A' + 'a');
        else if (std::string_view(separators).find(each) == std::string_view::npos)
            text += each;
    return text;
}

/// The words that a candidate is made of, each plain.
std::vector<std::string> partsOf(std::string_view candidate)
{
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin < candidate.size();) {
        const std::size_t end = std::min(candidate.find_first_of(separators, begin), candidate.size());
        parts.push_back(plain(candidate.substr(begin, end - begin)));
        begin = end + 1;
    }
    return parts;
}

/// How many characters have to be inserted, left out, replaced or swapped with their neighbour.
std::size_t distance(const std::string& one, const std::string& other)
{
    std::vector<std::vector<std::size_t>> rows(one.size() + 1, std::vector<std::size_t>(other.size() + 1));
    std::iota(rows[0].begin(), rows[0].end(), 0);
    for (std::size_t i = 1; i <= one.size(); ++i) {
        rows[i][0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t replaced = rows[i - 1][j - 1] + (one[i - 1] == other[j - 1] ? 0 : 1);
            rows[i][j] = std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1])
                rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
        }
    }
    return rows[one.size()][other.size()];
}

/// Whether one word stands in the other, or a slip away from one of its parts.
bool isPartOf(const std::string& word, const std::string& candidate, const std::vector<std::string>& parts)
{
    return candidate.find(word) != std::string::npos ||
           (candidate.size() >= shortestPart && word.find(candidate) != std::string::npos) ||
           std::any_of(parts.begin(), parts.end(), [&](const std::string& part) {
               return part.size() > shortestPart && distance(word, part) <= 1;
           });
}

/// Whether most of the parts of both are the same: "title-if-empty" and "title-if-missing".
bool sharesMostParts(const std::vector<std::string>& parts, const std::vector<std::string>& others)
{
    const auto shared = std::count_if(parts.begin(), parts.end(), [&](const std::string& part) {
        return std::find(others.begin(), others.end(), part) != others.end();
    });
    return shared > 1 && 2 * shared > std::max(std::ssize(parts), std::ssize(others));
}

/// 0 for the same word; `farthest` and above is too far.
std::size_t remoteness(std::string_view given, const std::string& candidate, std::size_t farthest)
{
    const std::string word = plain(given);
    const std::string whole = plain(candidate);
    const std::size_t apart = distance(word, whole);
    if (apart < farthest || word.size() < shortestPart)
        return apart;
    if (sharesMostParts(partsOf(given), partsOf(candidate)))
        return farthest - 2;
    return isPartOf(word, whole, partsOf(candidate)) ? farthest - 1 : farthest;
}

} // namespace

std::string nearest(std::string_view word, const std::vector<std::string>& candidates)
{
    const std::string wanted = plain(word);
    const std::size_t farthest = wanted.size() / 3 + 2;
    std::size_t best = farthest;
    std::string found;
    for (const std::string& candidate : candidates) {
        const std::size_t apart = remoteness(word, candidate, farthest);
        // Of a short word nearly everything may be left: something has to be the same.
        if (apart < best && apart < std::max<std::size_t>(wanted.size(), 1)) {
            best = apart;
            found = candidate;
        }
    }
    return found;
}

std::string didYouMean(std::string_view word, const std::vector<std::string>& candidates,
                       const std::string& prefix)
{
    const std::string found = nearest(word, candidates);
    return found.empty() ? found : "; did you mean \"" + prefix + found + "\"?";
}

} // namespace host::suggestion
