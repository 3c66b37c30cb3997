#pragma once

#include <array>
#include <string_view>

/// What LastErrorCode says of an instance's last call, and the library's other numbers that hosts act on. The
/// header stands alone, so that a host can show the texts without linking the library. Nothing here keeps
/// anything: any thread.
///
///     if (library.LoadFromFile(name, L"") == 0)
///         std::cerr << engine::errorText(library.LastErrorCode());
namespace engine {

/// Why a call gave 0 or an empty string; `errorTexts` says of each what it means. The numbers are part of the
/// library's interface: never reuse or renumber one. docs/engine.md tells which operation gives which.
enum class ErrorCode : int {
    /// The call succeeded, or 0 and empty are what it had to tell.
    None = 0,
    // Of the call itself; the document is as it was.
    /// No such operation in this library, or no such item of SecurityInfo.
    NotAvailable = 1,
    /// None was loaded, or the selected one was removed: load or select one first.
    NoDocument = 2,
    /// Ids of documents are not used again: this one was removed, or never given.
    UnknownDocument = 3,
    /// Also a wide string that is no buffer of the instance, and a file name with a NUL in it.
    BadArgument = 4,
    /// Pages are numbered from 1 to PageCount.
    UnknownPage = 5,
    /// The id was not given for the selected document; or, of SetDestValue, the document does not open there.
    UnknownDestination = 6,
    /// There is nothing to append: the document as it was loaded is as asked.
    NothingChanged = 7,
    /// The document's structure is one that is not appended to. SaveToFile may still write it.
    CannotAppend = 8,
    /// An allocation failed, as it does at the limits of the process, too.
    OutOfMemory = 9,
    /// A fault of the library, which no document should be able to cause.
    Internal = 10,
    /// Of AppendToString(ForInPlace) alone; appending to a copy is possible.
    NotInPlace = 11,

    // Of the file that is read or written; what was at a target's path is there still.
    /// Of a target: its folder.
    FileNotFound = 20,
    AccessDenied = 21,
    /// A folder, pipe, socket or device, which are neither read nor replaced.
    NotARegularFile = 22,
    EmptyFile = 23,
    /// Opened or read, for another reason than the four above.
    ReadFailed = 24,
    /// Since it was loaded: remove it and load it again.
    SourceChanged = 25,
    /// For a reason that has no code of its own.
    WriteFailed = 26,
    /// No room, or the quota is used up.
    DiskFull = 27,
    FileTooLarge = 28,
    DeviceFailed = 29,
    ReadOnlyFileSystem = 30,

    // Of the document as it was found.
    /// Nothing in it looks like one.
    NotAPdf = 40,
    Damaged = 41,
    NoPages = 42,
    /// Nor is it the empty one, which is tried as well.
    WrongPassword = 43,
    /// A security handler, or a version of the standard one, that libqpdf does not know.
    UnsupportedEncryption = 44,
    TooComplex = 45,
    /// Made to keep a reader busy, most likely; docs/engine.md tells the limits.
    TooMuchWork = 46,
    /// It cannot be decoded, is no UTF-8 or UTF-16, or is longer than 16 MiB.
    MetadataUnreadable = 47,

    // Why it is not written; up to ObjectsUncertain it is in doubt what it holds, and neither AppendToFile nor
    // SaveToFile writes it.
    NewestRevisionUncertain = 60,
    ObjectStreamsUnread = 61,
    EncryptionUncertain = 62,
    ObjectsDamaged = 63,
    ObjectsUncertain = 64,
    /// Of SaveToFile alone: AppendToFile leaves the bytes that were signed as they are.
    ByteRangesPresent = 65,
    /// Of SaveToFile alone, found by reading the result again; it is not kept.
    RewritingLoses = 66,
    /// Of AppendToFile alone: SaveToFile writes right lengths.
    StreamLengthsWrong = 67,
};

/// A code and its words.
struct ErrorText
{
    ErrorCode code;
    std::string_view text; ///< Lives as long as the program.
};

/// A text for every code: in English, without a full stop, to stand behind a document's name and a colon.
// clang-format off
inline constexpr std::array errorTexts{
    ErrorText{ErrorCode::None,                  "no error"},
    ErrorText{ErrorCode::NotAvailable,          "this function is not available here"},
    ErrorText{ErrorCode::NoDocument,            "no document is selected"},
    ErrorText{ErrorCode::UnknownDocument,       "there is no document with this id"},
    ErrorText{ErrorCode::BadArgument,           "a number or text is outside what the function takes"},
    ErrorText{ErrorCode::UnknownPage,           "the document has no page with this number"},
    ErrorText{ErrorCode::UnknownDestination,    "there is no destination with this id"},
    ErrorText{ErrorCode::NothingChanged,        "the document has not been changed"},
    ErrorText{ErrorCode::CannotAppend,          "the change cannot be appended to this document"},
    ErrorText{ErrorCode::OutOfMemory,           "the document needs more memory than there is"},
    ErrorText{ErrorCode::Internal,              "internal error"},
    ErrorText{ErrorCode::NotInPlace,            "the change can be appended to a copy of the document only"},
    ErrorText{ErrorCode::FileNotFound,          "no such file or folder"},
    ErrorText{ErrorCode::AccessDenied,          "permission denied"},
    ErrorText{ErrorCode::NotARegularFile,       "not a regular file"},
    ErrorText{ErrorCode::EmptyFile,             "the file is empty"},
    ErrorText{ErrorCode::ReadFailed,            "the file cannot be read"},
    ErrorText{ErrorCode::SourceChanged,         "the file was changed by another program meanwhile"},
    ErrorText{ErrorCode::WriteFailed,           "the file cannot be written"},
    ErrorText{ErrorCode::DiskFull,              "no space left on the device"},
    ErrorText{ErrorCode::FileTooLarge,          "the result is larger than the file system or a limit of the process allows"},
    ErrorText{ErrorCode::DeviceFailed,          "the device that the file is written to reports an error"},
    ErrorText{ErrorCode::ReadOnlyFileSystem,    "read-only file system"},
    ErrorText{ErrorCode::NotAPdf,               "not a PDF document"},
    ErrorText{ErrorCode::Damaged,               "the document is damaged beyond repair"},
    ErrorText{ErrorCode::NoPages,               "the document has no pages"},
    ErrorText{ErrorCode::WrongPassword,         "a password is needed, and the one given is not right"},
    ErrorText{ErrorCode::UnsupportedEncryption, "the document's encryption is not supported"},
    ErrorText{ErrorCode::TooComplex,            "the document is nested too deeply or refers to itself"},
    ErrorText{ErrorCode::TooMuchWork,           "the document needs far more work than its size explains"},
    ErrorText{ErrorCode::MetadataUnreadable,    "its XMP metadata cannot be read"},
    ErrorText{ErrorCode::NewestRevisionUncertain, "its cross-reference or its end is damaged, and it is uncertain which of its revisions is the newest"},
    ErrorText{ErrorCode::ObjectStreamsUnread,   "its cross-reference is damaged, and objects in its object streams would be overlooked"},
    ErrorText{ErrorCode::EncryptionUncertain,   "it is uncertain whether it is encrypted: a trailer that is not in use says so"},
    ErrorText{ErrorCode::ObjectsDamaged,        "some of its objects are damaged or missing"},
    ErrorText{ErrorCode::ObjectsUncertain,      "its cross-reference is damaged, and it is uncertain where its objects are"},
    ErrorText{ErrorCode::ByteRangesPresent,     "it holds byte ranges of signatures, which would not hold for a document written anew"},
    ErrorText{ErrorCode::RewritingLoses,        "written anew it would have other pages, or lack some of its objects"},
    ErrorText{ErrorCode::StreamLengthsWrong,    "its cross-reference is damaged, and so are lengths of its streams"},
};
// clang-format on

/// Whether a code tells that it is in doubt what a document holds.
constexpr bool isDoubt(ErrorCode code)
{
    return code >= ErrorCode::NewestRevisionUncertain && code <= ErrorCode::ObjectsUncertain;
}

/// Whether a code tells that nothing can be appended to a document. Where there is no doubt SaveToFile may
/// still be able to write it.
constexpr bool cannotAppend(ErrorCode code)
{
    return code == ErrorCode::CannotAppend || code == ErrorCode::StreamLengthsWrong || isDoubt(code);
}

/// The text of a code as LastErrorCode returns it; that of Internal for a number that is none. It lives as
/// long as the program.
constexpr std::string_view errorText(int code)
{
    for (const ErrorText& entry : errorTexts)
        if (static_cast<int>(entry.code) == code)
            return entry.text;
    return "internal error";
}

/// What EncryptionStatus returns for the selected document.
enum EncryptionStatus {
    NotEncrypted = 0,
    OpenedWithUserPassword =
        1, ///< Also by the empty one. SecurityInfo(ModificationAllowed) tells what it allows.
    OpenedWithOwnerPassword = 2, ///< Everything is allowed.
};

/// Forms of an update that AppendToString returns.
enum UpdateForm {
    /// As AppendToFile writes it, behind a copy.
    ForCopy = 0,
    /// To be written where the document lies, and from its last "startxref" on only when all before that is
    /// on the disk. Up to then readers pass over it.
    ForInPlace = 1,
};

/// Items of SecurityInfo; other items are not available here.
enum SecurityItem {
    /// Number of signatures in the document, usage rights and certifications included.
    SignatureCount = 101,
    /// 1 when the encryption allows this user to modify the document (or there is none), else 0.
    ModificationAllowed = 102,
    /// 1 when the document differs from what was loaded, else 0.
    UnsavedChanges = 103,
    /// The code with which AppendToFile would refuse the document, 0 when it would not.
    AppendRefusal = 104,
    /// 1 when the document is certified: its author allows no other changes than those that the certification
    /// names, else 0.
    Certification = 105,
};

} // namespace engine
