#pragma once

#include "Session.h"

#include <string>
#include <string_view>
#include <type_traits>

/// Which function implements which operation of the library. Everything here is made from the rows of
/// operations.def when it is compiled; nothing changes while the library runs, so any thread may read it.
///
///     OperationSlots slots;
///     slots.SetPageLayout = operations::SetPageLayout;
namespace engine {

/// The C++ type of every operation, by name, with owning strings where it takes or gives some:
/// `SetPageLayout` is `int(int)`, `GetInformation` is `std::wstring(int)`.
struct OperationTypes
{
    using I = int;
    using D = double;
    using W = std::wstring; ///< Characters, 32 bits each.
    using B = std::string;  ///< Bytes, of any value.
#define TPL_OP(Result, Name, Arguments, ...) using Name = Result(__VA_ARGS__);
#include "pdflibrary/operations.def"
#undef TPL_OP
};

/// How an argument of an operation's type reaches its implementation: a number as it is, a string as a view
/// that is valid during the call; it may hold NULs and has none behind it. What an implementation is to keep it
/// copies.
template <class Type>
using SlotArgument =
    std::conditional_t<std::is_same_v<Type, std::wstring>, std::wstring_view,
                       std::conditional_t<std::is_same_v<Type, std::string>, std::string_view, Type>>;

/// One implementation. It takes the session first, returns its result by value and fails by throwing
/// EngineError, whose code LastErrorCode then tells while the caller gets 0 or an empty string. It checks its
/// arguments before it changes anything, so that a failure leaves the document as it was. It may be run twice
/// for one call: when reading piece by piece comes to its end within it, the document is opened whole and the
/// operation begins again.
template <class Operation>
struct SlotFor;
template <class Result, class... Parameters>
struct SlotFor<Result(Parameters...)>
{
    /// The session is the caller's instance and used by this thread alone until the call ends.
    using Pointer = Result (*)(Session&, SlotArgument<Parameters>...);

    /// Stands where nothing is assigned: an empty result and the code NotAvailable, whatever the arguments
    /// and with or without a document.
    static Result unavailable(Session& session, SlotArgument<Parameters>...)
    {
        session.setLastError(ErrorCode::NotAvailable);
        return Result();
    }
};

/// The implementation of every operation, filled in by `exports.cpp` when it is compiled: one field per row
/// of the table, "not available" unless assigned. A function of another name or signature than the row's
/// cannot be assigned.
struct OperationSlots
{
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    SlotFor<OperationTypes::Name>::Pointer Name = &SlotFor<OperationTypes::Name>::unavailable;
#include "pdflibrary/operations.def"
#undef TPL_OP
};

} // namespace engine
