#pragma once

#include "Session.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace engine {

/// The C++ type of every operation, by name: `SetPageLayout` is `int(int)`, `GetInformation` is
/// `std::wstring(int)`.
struct OperationTypes
{
    using I = int;
    using D = double;
    using W = std::wstring;
    using B = std::string;
#define TPL_OP(Result, Name, Arguments, ...) using Name = Result(__VA_ARGS__);
#include "pdflibrary/operations.def"
#undef TPL_OP
};

/// How a string reaches an implementation: a view that is valid during the call.
template <class Type>
using SlotArgument =
    std::conditional_t<std::is_same_v<Type, std::wstring>, std::wstring_view,
                       std::conditional_t<std::is_same_v<Type, std::string>, std::string_view, Type>>;

/// One implementation. It takes the session first, returns its result by value and fails by throwing
/// EngineError.
template <class Operation>
struct SlotFor;
template <class Result, class... Parameters>
struct SlotFor<Result(Parameters...)>
{
    using Pointer = Result (*)(Session&, SlotArgument<Parameters>...);

    static Result unavailable(Session& session, SlotArgument<Parameters>...)
    {
        session.setLastError(ErrorCode::NotAvailable);
        return Result();
    }
};

/// The implementation of every operation: one field per row of the table, "not available" unless assigned.
struct OperationSlots
{
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    SlotFor<OperationTypes::Name>::Pointer Name = &SlotFor<OperationTypes::Name>::unavailable;
#include "pdflibrary/operations.def"
#undef TPL_OP
};

} // namespace engine
