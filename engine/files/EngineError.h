#pragma once

#include "pdflibrary/ErrorCodes.h"

#include <stdexcept>
#include <string>

namespace engine {

/// A failure with the code that LastErrorCode will report. It never leaves the library: the guard around
/// every exported function catches it.
class EngineError : public std::runtime_error
{
public:
    /// \param detail for developers; users see the code's own text.
    explicit EngineError(ErrorCode code, const std::string& detail = {})
        : std::runtime_error(detail.empty() ? std::string(errorText(static_cast<int>(code))) : detail),
          m_code(code)
    {}

    ErrorCode code() const { return m_code; }

private:
    ErrorCode m_code;
};

} // namespace engine
