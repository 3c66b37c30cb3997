#pragma once

#include "engine/files/EngineError.h"
#include "pdflibrary/ErrorCodes.h"

namespace engine {

/// Throws EngineError with `code` unless the condition holds.
inline void require(bool condition, ErrorCode code)
{
    if (!condition)
        throw EngineError(code);
}

/// Throws EngineError with BadArgument unless `value` is one of first, ..., last.
inline void requireWithin(int value, int first, int last)
{
    require(value >= first && value <= last, ErrorCode::BadArgument);
}

/// The number of a table's last row.
template <class Table>
constexpr int lastOf(const Table& table)
{
    return static_cast<int>(table.size()) - 1;
}

/// The row of a table for a number that was found to be within it.
template <class Table>
constexpr const auto& rowOf(const Table& table, int number)
{
    return table[static_cast<std::size_t>(number)];
}

} // namespace engine
