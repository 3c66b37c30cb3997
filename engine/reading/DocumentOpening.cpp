#include "DocumentOpening.h"

#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/update/SourceInput.h"

#include "pdflibrary/Wipe.h"

#include <qpdf/QUtil.hh>

#include <cstring>
#include <list>
#include <new>

namespace engine {

namespace {

const std::size_t headerSearchSize = 1024; // readers look for the header this far

std::list<Wiped<char>> passwordsToTry(std::string_view password)
{
    std::list<Wiped<char>> passwords;
    const bool passable = password.find('\0') == std::string_view::npos; // libqpdf takes C strings
    if (!password.empty() && passable)
        for (std::string& each : QUtil::possible_repaired_encodings(std::string(password))) {
            passwords.emplace_back(each);
            explicit_bzero(each.data(), each.size());
        }
    passwords.emplace_back();
    return passwords;
}

bool looksLikePdf(const ByteSource& source)
{
    return source.text(0, headerSearchSize).find("%PDF-") != std::string::npos;
}

/// The reason why a document was not opened: what kept it from being read comes before what libqpdf made of
/// it.
[[noreturn]] void refuse(QPDF& pdf, const ByteSource& source, const QPDFExc& error)
{
    for (const QPDFExc& warning : pdf.getWarnings())
        if (tellsOfShortMemory(warning))
            throw EngineError(ErrorCode::OutOfMemory);
    if (source.readFailed())
        throw EngineError(ErrorCode::ReadFailed);
    if (!source.unchangedSinceOpened())
        throw EngineError(ErrorCode::SourceChanged);
    const ErrorCode code = errorCodeOf(error);
    throw EngineError(code == ErrorCode::Damaged && !looksLikePdf(source) ? ErrorCode::NotAPdf : code,
                      error.what());
}

/// \returns null when the password is not right.
std::shared_ptr<QPDF> tryToOpen(const std::shared_ptr<ByteSource>& source, const std::string& fileName,
                                const std::string& password)
{
    std::shared_ptr<QPDF> pdf = QPDF::create();
    pdf->setSuppressWarnings(true);
    try {
        pdf->processInputSource(std::make_shared<SourceInput>(source, fileName), password.c_str());
        pdf->getRoot();
    } catch (const QPDFExc& error) {
        if (errorCodeOf(error) == ErrorCode::WrongPassword)
            return nullptr;
        refuse(*pdf, *source, error);
    }
    return pdf;
}

} // namespace

ErrorCode errorCodeOf(const QPDFExc& error)
{
    switch (error.getErrorCode()) {
    case qpdf_e_system:
        return ErrorCode::ReadFailed;
    case qpdf_e_unsupported:
        return ErrorCode::UnsupportedEncryption;
    case qpdf_e_password:
        return ErrorCode::WrongPassword;
    case qpdf_e_internal:
        return ErrorCode::Internal;
    default:
        return ErrorCode::Damaged;
    }
}

bool tellsOfShortMemory(const QPDFExc& warning)
{
    return warning.getMessageDetail().find(std::bad_alloc().what()) != std::string::npos;
}

std::shared_ptr<QPDF> openWhole(const std::shared_ptr<ByteSource>& source, const std::string& fileName,
                                std::string_view password)
{
    for (const Wiped<char>& attempt : passwordsToTry(password))
        if (auto pdf = tryToOpen(source, fileName, attempt.text))
            return pdf;
    throw EngineError(ErrorCode::WrongPassword);
}

} // namespace engine
