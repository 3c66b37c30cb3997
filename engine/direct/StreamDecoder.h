#pragma once

#include "engine/syntax/SyntaxScanner.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

/// No stream gives more than this.
inline constexpr std::size_t largestDecoded = 64 << 20;

/// Decodes the data of a cross-reference or object stream, as far as that is wanted: what lies behind is not
/// looked at, so that it costs nothing.
/// \param dictionary the stream's. \param most how many bytes are wanted, up to `largestDecoded`; there may
/// be more with a predictor. \returns nothing for filters and predictors that such streams do not use, and
/// for damaged data.
std::optional<std::string> decodedStream(const DictionaryEntries& dictionary, std::string_view data,
                                         std::size_t most);

} // namespace engine
