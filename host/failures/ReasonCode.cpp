#include "ReasonCode.h"

#include "host/files/FileDescriptor.h"

#include "pdflibrary/ErrorCodes.h"

#include <array>
#include <cerrno>

namespace host {

namespace {

using enum ReasonCode;

struct Name
{
    ReasonCode code;
    const char* name;
};

// docs/usage.md tells what each means.
constexpr std::array<Name, reasonCodeCount> names{{
    {None, ""},
    {Signed, "signed"},
    {Certified, "certified"},
    {Password, "password"},
    {Permission, "permission"},
    {Encryption, "encryption"},
    {NotPdf, "notPdf"},
    {EmptyFile, "emptyFile"},
    {Damaged, "damaged"},
    {Uncertain, "uncertain"},
    {CannotAppend, "cannotAppend"},
    {CannotRewrite, "cannotRewrite"},
    {TooComplex, "tooComplex"},
    {Metadata, "metadata"},
    {PageBeyondEnd, "pageBeyondEnd"},
    {OpenAction, "openAction"},
    {RefusedCall, "refusedCall"},
    {NotFound, "notFound"},
    {AccessDenied, "accessDenied"},
    {NotAFile, "notAFile"},
    {ReadFailed, "readFailed"},
    {WriteFailed, "writeFailed"},
    {NoSpace, "noSpace"},
    {ReadOnly, "readOnly"},
    {TooLarge, "tooLarge"},
    {ChangedMeanwhile, "changedMeanwhile"},
    {Locked, "locked"},
    {Timeout, "timeout"},
    {Memory, "memory"},
    {Crashed, "crashed"},
    {Hostile, "hostile"},
    {NoProcess, "noProcess"},
    {ChangedSince, "changedSince"},
    {NotInPlace, "notInPlace"},
    {NoUndoRecord, "noUndoRecord"},
    {BadReport, "badReport"},
    {NotInReport, "notInReport"},
    {Internal, "internal"},
}};

struct Meaning
{
    int number;
    ReasonCode code;
};

constexpr std::array systemErrors{
    Meaning{ENOENT, NotFound},    Meaning{ENOTDIR, NotFound},         Meaning{EACCES, AccessDenied},
    Meaning{EPERM, AccessDenied}, Meaning{EISDIR, NotAFile},          Meaning{ENXIO, NotAFile},
    Meaning{EROFS, ReadOnly},     Meaning{notARegularFile, NotAFile}, Meaning{ENOSPC, NoSpace},
    Meaning{EDQUOT, NoSpace},     Meaning{EFBIG, TooLarge},           Meaning{ENOMEM, Memory},
};

constexpr Meaning meaning(engine::ErrorCode code, ReasonCode reason)
{
    return {static_cast<int>(code), reason};
}

using engine::ErrorCode;

constexpr std::array libraryErrors{
    meaning(ErrorCode::NotAvailable, RefusedCall),
    meaning(ErrorCode::NoDocument, RefusedCall),
    meaning(ErrorCode::UnknownDocument, RefusedCall),
    meaning(ErrorCode::BadArgument, RefusedCall),
    meaning(ErrorCode::UnknownPage, RefusedCall),
    meaning(ErrorCode::UnknownDestination, RefusedCall),
    meaning(ErrorCode::NothingChanged, RefusedCall),
    meaning(ErrorCode::CannotAppend, ReasonCode::CannotAppend),
    meaning(ErrorCode::OutOfMemory, Memory),
    meaning(ErrorCode::Internal, ReasonCode::Internal),
    meaning(ErrorCode::FileNotFound, NotFound),
    meaning(ErrorCode::AccessDenied, ReasonCode::AccessDenied),
    meaning(ErrorCode::NotARegularFile, NotAFile),
    meaning(ErrorCode::EmptyFile, ReasonCode::EmptyFile),
    meaning(ErrorCode::ReadFailed, ReasonCode::ReadFailed),
    meaning(ErrorCode::SourceChanged, ChangedMeanwhile),
    meaning(ErrorCode::WriteFailed, ReasonCode::WriteFailed),
    meaning(ErrorCode::DiskFull, NoSpace),
    meaning(ErrorCode::FileTooLarge, TooLarge),
    meaning(ErrorCode::DeviceFailed, ReasonCode::WriteFailed),
    meaning(ErrorCode::ReadOnlyFileSystem, ReadOnly),
    meaning(ErrorCode::NotAPdf, NotPdf),
    meaning(ErrorCode::Damaged, ReasonCode::Damaged),
    meaning(ErrorCode::NoPages, ReasonCode::Damaged),
    meaning(ErrorCode::WrongPassword, Password),
    meaning(ErrorCode::UnsupportedEncryption, Encryption),
    meaning(ErrorCode::TooComplex, ReasonCode::TooComplex),
    meaning(ErrorCode::TooMuchWork, ReasonCode::TooComplex),
    meaning(ErrorCode::MetadataUnreadable, Metadata),
    meaning(ErrorCode::NewestRevisionUncertain, Uncertain),
    meaning(ErrorCode::ObjectStreamsUnread, Uncertain),
    meaning(ErrorCode::EncryptionUncertain, Uncertain),
    meaning(ErrorCode::ObjectsDamaged, Uncertain),
    meaning(ErrorCode::ObjectsUncertain, Uncertain),
    meaning(ErrorCode::ByteRangesPresent, CannotRewrite),
    meaning(ErrorCode::RewritingLoses, CannotRewrite),
    meaning(ErrorCode::StreamLengthsWrong, ReasonCode::CannotAppend),
    meaning(ErrorCode::NotInPlace, ReasonCode::CannotAppend),
};
static_assert(libraryErrors.size() + 1 == engine::errorTexts.size(), "each has a meaning, but no error");

template <class Table>
ReasonCode found(const Table& table, int number, ReasonCode otherwise)
{
    for (const Meaning& each : table)
        if (each.number == number)
            return each.code;
    return otherwise;
}

} // namespace

const char* nameOf(ReasonCode code)
{
    for (const Name& each : names)
        if (each.code == code)
            return each.name;
    return nameOf(Internal);
}

ReasonCode reasonOfSystemError(int number, ReasonCode otherwise)
{
    return found(systemErrors, number, otherwise);
}

ReasonCode reasonOfLibraryError(int code)
{
    return found(libraryErrors, code, Internal);
}

} // namespace host
