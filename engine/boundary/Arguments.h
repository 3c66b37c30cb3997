#pragma once

#include "engine/files/EngineError.h"
#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/ViewNumbers.h"

/// Checks of what a caller of the library hands to an operation. They come before anything is changed, so
/// that a refused call leaves the document as it was; the guard around the operations turns what they throw
/// into the code of LastErrorCode. No function here keeps anything: any thread.
///
///     requireWithin(layout, SinglePage, lastOf(pageLayoutNames));
///     const char* const name = rowOf(pageLayoutNames, layout);
namespace engine {

/// Throws EngineError with `code` unless the condition holds. For what a caller can do better: a fault of the
/// library is a std::logic_error, which becomes the code Internal.
inline void require(bool condition, ErrorCode code)
{
    if (!condition)
        throw EngineError(code);
}

/// Whether a document can have the number, in whatever unit: 2147483647 at most, either way. A NaN is none, nor
/// is an infinity.
inline bool isNumber(double value)
{
    return value >= -pdflibrary::largestNumber && value <= pdflibrary::largestNumber;
}

/// Throws EngineError with BadArgument unless `value` is one of first, ..., last.
inline void requireWithin(int value, int first, int last)
{
    require(value >= first && value <= last, ErrorCode::BadArgument);
}

/// The number of a table's last row: the highest that requireWithin() may let pass for rowOf().
/// \param table has a row at least.
template <class Table>
constexpr int lastOf(const Table& table)
{
    return static_cast<int>(table.size()) - 1;
}

/// The row of a table at a number.
/// \param number 0 to lastOf(table), as requireWithin() has found; it is not checked once more.
/// \returns a reference into the table, which lasts as long as that.
template <class Table>
constexpr const auto& rowOf(const Table& table, int number)
{
    return table[static_cast<std::size_t>(number)];
}

} // namespace engine
