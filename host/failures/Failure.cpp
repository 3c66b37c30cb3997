#include "Failure.h"

#include "host/files/FileDescriptor.h"

#include "pdflibrary/ErrorCodes.h"

#include <new>

namespace host {

Failure Failure::ofSystem(int number, ReasonCode otherwise, const std::string& what)
{
    return {reasonOfSystemError(number, otherwise), what + systemError(number)};
}

Failure Failure::ofLibrary(int code, const std::string& what)
{
    return {reasonOfLibraryError(code), what + std::string(engine::errorText(code))};
}

Failure Failure::ofException()
{
    try {
        throw;
    } catch (const DocumentError& error) {
        return error.failure();
    } catch (const std::bad_alloc&) {
        return ofLibrary(static_cast<int>(engine::ErrorCode::OutOfMemory));
    } catch (const std::exception& error) {
        return {ReasonCode::Internal, error.what()};
    }
}

} // namespace host
