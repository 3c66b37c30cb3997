#include "Suggestion.h"

#include <algorithm>
#include <numeric>

namespace host::suggestion {

namespace {

const std::size_t longestWord = 64; // the work grows with the square of the length
const std::size_t shortestPart = 3; // shorter ones are in too many words

/// Letters in lower case, without what separates words.
std::string plain(std::string_view word)
{
    std::string text;
    for (const char each : word.substr(0, longestWord))
        if (each >= 'A' && each <= 'Z')
            text += static_cast<char>(each - 'A' + 'a');
        else if (each != '-' && each != '_' && each != ' ')
            text += each;
    return text;
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

/// 0 for the same word; `farthest` and above is too far.
std::size_t remoteness(const std::string& word, const std::string& candidate, std::size_t farthest)
{
    const std::size_t apart = distance(word, candidate);
    if (apart < farthest || word.size() < shortestPart)
        return apart;
    const bool holds = candidate.find(word) != std::string::npos ||
                       (candidate.size() >= shortestPart && word.find(candidate) != std::string::npos);
    return holds ? farthest - 1 : farthest;
}

} // namespace

std::string nearest(std::string_view word, const std::vector<std::string>& candidates)
{
    const std::string wanted = plain(word);
    const std::size_t farthest = wanted.size() / 3 + 2;
    std::size_t best = farthest;
    std::string found;
    for (const std::string& candidate : candidates) {
        const std::size_t apart = remoteness(wanted, plain(candidate), farthest);
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
