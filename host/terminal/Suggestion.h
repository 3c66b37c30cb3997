#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a word that nobody knows may have been meant to be.
namespace host::suggestion {

/// The candidate that is nearest to the word: the same but for case, hyphens or a few mistyped characters, or
/// a longer word that holds it. Empty when none is near.
std::string nearest(std::string_view word, const std::vector<std::string>& candidates);

/// `; did you mean "--page-mode"?`, ready to end a message; empty when no candidate is near.
/// \param prefix stands before the candidate in the quotes.
std::string didYouMean(std::string_view word, const std::vector<std::string>& candidates,
                       const std::string& prefix = {});

} // namespace host::suggestion
