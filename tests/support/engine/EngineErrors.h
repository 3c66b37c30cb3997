#pragma once

#include "engine/files/EngineError.h"

/// The code of the error that a call ends with.
template <class Call>
engine::ErrorCode errorOf(const Call& call)
{
    try {
        call();
        return engine::ErrorCode::None;
    } catch (const engine::EngineError& error) {
        return error.code();
    }
}
