#pragma once

#include <cstddef>
#include <cstdint>

namespace host {

/// Why something could not be done, for programs: what a person can do about it depends on this. The names
/// stand in reports and events, so they stay what they are.
enum class ReasonCode : std::uint8_t {
    None,
    Signed,
    Certified,
    Password,
    Permission,
    Encryption,
    NotPdf,
    EmptyFile,
    Damaged,
    Uncertain,
    CannotAppend,
    CannotRewrite,
    TooComplex,
    Metadata,
    PageBeyondEnd,
    OpenAction,
    RefusedCall,
    NotFound,
    AccessDenied,
    NotAFile,
    ReadFailed,
    WriteFailed,
    NoSpace,
    ReadOnly,
    TooLarge,
    ChangedMeanwhile,
    Locked,
    Timeout,
    Memory,
    Crashed,
    Hostile,
    NoProcess,
    ChangedSince,
    NotInPlace,
    NoUndoRecord,
    BadReport,
    NotInReport,
    Internal,
};

inline constexpr std::size_t reasonCodeCount = static_cast<std::size_t>(ReasonCode::Internal) + 1;

/// Whether a number that came from elsewhere is a code.
constexpr bool isReasonCode(std::int64_t number)
{
    return number >= 0 && number < static_cast<std::int64_t>(reasonCodeCount);
}

/// "changedMeanwhile"; empty for None.
const char* nameOf(ReasonCode code);

/// What the system's error numbers mean. \param otherwise for those that say nothing of their own.
ReasonCode reasonOfSystemError(int number, ReasonCode otherwise);

/// What the library's error codes mean (pdflibrary/ErrorCodes.h).
ReasonCode reasonOfLibraryError(int code);

} // namespace host
