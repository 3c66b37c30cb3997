#pragma once

#include "ReasonCode.h"

#include <stdexcept>
#include <string>

namespace host {

/// Why something could not be done, or that it could: then it is false, and its text empty.
struct Failure
{
    ReasonCode code = ReasonCode::None;
    /// In words that the user can act on; UTF-8, may hold bytes of file names.
    std::string text = {};

    explicit operator bool() const { return code != ReasonCode::None; }

    /// What an errno value says. \param what stands before the system's words, "it cannot be read: ".
    /// \param otherwise for numbers that say nothing of their own.
    static Failure ofSystem(int number, ReasonCode otherwise, const std::string& what = {});
    /// What the library's LastErrorCode says. \param what stands before its words.
    static Failure ofLibrary(int code, const std::string& what = {});
    /// The exception that is being handled.
    static Failure ofException();
};

/// A failure that ends the work on one document.
class DocumentError : public std::runtime_error
{
public:
    explicit DocumentError(const Failure& failure) : std::runtime_error(failure.text), m_code(failure.code) {}
    Failure failure() const { return {m_code, what()}; }

private:
    ReasonCode m_code;
};

} // namespace host
