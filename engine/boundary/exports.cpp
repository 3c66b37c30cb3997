#include "OperationSlots.h"
#include "Operations.h"
#include "Session.h"
#include "engine/files/EngineError.h"
#include "engine/reading/DocumentOpening.h"
#include "engine/update/SourceInput.h"

#include <algorithm>
#include <climits>
#include <new>
#include <type_traits>

namespace {

using namespace engine;

constexpr void addDocuments(OperationSlots& slots)
{
    slots.LoadFromFile = operations::LoadFromFile;
    slots.LoadFromString = operations::LoadFromString;
    slots.SaveToFile = operations::SaveToFile;
    slots.AppendToFile = operations::AppendToFile;
    slots.AppendToString = operations::AppendToString;
    slots.SaveToString = operations::SaveToString;
    slots.DocumentCount = operations::DocumentCount;
    slots.GetDocumentID = operations::GetDocumentID;
    slots.SelectDocument = operations::SelectDocument;
    slots.SelectedDocument = operations::SelectedDocument;
    slots.RemoveDocument = operations::RemoveDocument;
    slots.GetDocumentFileName = operations::GetDocumentFileName;
    slots.GetDocumentRepaired = operations::GetDocumentRepaired;
    slots.IsLinearized = operations::IsLinearized;
    slots.EncryptionStatus = operations::EncryptionStatus;
    slots.SecurityInfo = operations::SecurityInfo;
    slots.LastErrorCode = operations::LastErrorCode;
    slots.LibraryVersion = operations::LibraryVersion;
}

constexpr void addInformation(OperationSlots& slots)
{
    slots.GetInformation = operations::GetInformation;
    slots.SetInformation = operations::SetInformation;
    slots.GetCatalogInformation = operations::GetCatalogInformation;
    slots.SetCatalogInformation = operations::SetCatalogInformation;
    slots.GetDocumentMetadata = operations::GetDocumentMetadata;
    slots.SetDocumentMetadata = operations::SetDocumentMetadata;
}

constexpr void addView(OperationSlots& slots)
{
    slots.GetPageMode = operations::GetPageMode;
    slots.SetPageMode = operations::SetPageMode;
    slots.GetPageLayout = operations::GetPageLayout;
    slots.SetPageLayout = operations::SetPageLayout;
    slots.GetViewerPreferences = operations::GetViewerPreferences;
    slots.SetViewerPreferences = operations::SetViewerPreferences;
    slots.GetOpenActionDestination = operations::GetOpenActionDestination;
    slots.SetOpenActionDestinationFull = operations::SetOpenActionDestinationFull;
    slots.RemoveOpenAction = operations::RemoveOpenAction;
    slots.GetActionType = operations::GetActionType;
    slots.GetDestType = operations::GetDestType;
    slots.GetDestPage = operations::GetDestPage;
    slots.GetDestValue = operations::GetDestValue;
    slots.SetDestValue = operations::SetDestValue;
    slots.GetDestName = operations::GetDestName;
}

constexpr void addOutline(OperationSlots& slots)
{
    slots.OutlineCount = operations::OutlineCount;
    slots.GetFirstOutline = operations::GetFirstOutline;
    slots.GetFirstChildOutline = operations::GetFirstChildOutline;
    slots.GetNextOutline = operations::GetNextOutline;
    slots.OutlineTitle = operations::OutlineTitle;
    slots.GetOutlinePage = operations::GetOutlinePage;
    slots.GetOutlineStyle = operations::GetOutlineStyle;
}

constexpr void addPages(OperationSlots& slots)
{
    slots.PageCount = operations::PageCount;
    slots.SelectPage = operations::SelectPage;
    slots.SelectedPage = operations::SelectedPage;
    slots.GetPageBox = operations::GetPageBox;
    slots.PageWidth = operations::PageWidth;
    slots.PageHeight = operations::PageHeight;
    slots.PageRotation = operations::PageRotation;
}

// What the library really has, by the operations' sources. Everything else is not available.
constexpr OperationSlots implemented()
{
    OperationSlots slots;
    addDocuments(slots);
    addInformation(slots);
    addView(slots);
    addOutline(slots);
    addPages(slots);
    slots.GetInstalledFontsByCharset = operations::GetInstalledFontsByCharset;
    return slots;
}

constexpr OperationSlots implementations = implemented();

/// How a type crosses the C boundary: numbers as they are, strings as pointers.
template <class Type>
struct BoundaryType
{
    using Argument = Type;
    using Result = Type;
    static Type in(Session&, Type value) { return value; }
    static Type out(Session&, Type value) { return value; }
};

template <>
struct BoundaryType<std::wstring>
{
    using Argument = char*;
    using Result = wchar_t*;
    static std::wstring_view in(Session& session, char* buffer) { return session.buffers.takeWide(buffer); }
    static wchar_t* out(Session& session, std::wstring&& text)
    {
        session.wideResult = std::move(text);
        return session.wideResult.data();
    }
};

template <>
struct BoundaryType<std::string>
{
    using Argument = char*;
    using Result = char*;
    static std::string_view in(Session& session, const char* text) { return session.buffers.bytes(text); }
    static char* out(Session& session, std::string&& bytes)
    {
        session.byteResult = std::move(bytes);
        return session.byteResult.data();
    }
};

/// The code for the exception being handled.
ErrorCode codeOfCurrentException() noexcept
{
    try {
        throw;
    } catch (const EngineError& error) {
        return error.code();
    } catch (const QPDFExc& error) {
        return errorCodeOf(error);
    } catch (const WorkBudgetSpent&) {
        return ErrorCode::TooMuchWork;
    } catch (const std::bad_alloc&) {
        return ErrorCode::OutOfMemory;
    } catch (const std::logic_error&) {
        return ErrorCode::Internal;
    } catch (const std::runtime_error&) {
        // libqpdf throws it for numbers in the document that are out of range
        return ErrorCode::Damaged;
    } catch (...) {
        return ErrorCode::Internal;
    }
}

/// One call of an instance. The results of the call before stay until it ends, since an argument may point to
/// them.
class Call
{
public:
    explicit Call(Session& session)
        : m_session(session), m_oldWide(std::move(session.wideResult)),
          m_oldBytes(std::move(session.byteResult))
    {
        session.beginCall();
        session.wideResult.clear();
        session.byteResult.clear();
    }
    ~Call() { m_session.buffers.releaseTaken(); }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

private:
    Session& m_session;
    std::wstring m_oldWide;
    std::string m_oldBytes;
};

/// The one way into the library: finds the session, runs the implementation, and turns whatever it throws
/// into an error code and the empty result.
template <class Operation>
struct ExportedCall;

template <class Result, class... Parameters>
struct ExportedCall<Result(Parameters...)>
{
    using Returned = typename BoundaryType<Result>::Result;

    /// When reading directly ends within it, once more, over the document as libqpdf reads it.
    template <class... Arguments>
    static Result run(typename SlotFor<Result(Parameters...)>::Pointer slot, Session& session,
                      Arguments... arguments)
    {
        try {
            return slot(session, arguments...);
        } catch (const DirectReadingEnded&) {
            session.document().readWhole();
            return slot(session, arguments...);
        }
    }

    static Returned call(typename SlotFor<Result(Parameters...)>::Pointer slot, int instance,
                         typename BoundaryType<Parameters>::Argument... arguments) noexcept
    {
        const std::shared_ptr<Session> session = Session::find(instance);
        if (session == nullptr)
            return Returned();
        const Call running(*session);
        try {
            return BoundaryType<Result>::out(
                *session, run(slot, *session, BoundaryType<Parameters>::in(*session, arguments)...));
        } catch (...) {
            session->setLastError(codeOfCurrentException());
            return BoundaryType<Result>::out(*session, Result());
        }
    }
};

template <class Result, class Function>
Result guarded(Function function) noexcept
{
    try {
        return function();
    } catch (...) {
        return Result();
    }
}

int lengthOf(std::size_t length)
{
    return static_cast<int>(std::min<std::size_t>(length, INT_MAX));
}

} // namespace

#define TPL_ARGUMENTS(...) __VA_OPT__(, ) __VA_ARGS__

extern "C" {

using I = int;
using D = double;
using W = char*;
using B = char*;

// int TPLSetPageLayout(int instance, int layout) { return
// ExportedCall<OperationTypes::SetPageLayout>::call(implementations.SetPageLayout, instance, layout); }
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    ExportedCall<OperationTypes::Name>::Returned TPL##Name(int instance TPL_ARGUMENTS(__VA_ARGS__))          \
    {                                                                                                        \
        return ExportedCall<OperationTypes::Name>::call(implementations.Name,                                \
                                                        instance TPL_ARGUMENTS Arguments);                   \
    }
#include "pdflibrary/operations.def"
#undef TPL_OP

int TPLCreateLibrary()
{
    return guarded<int>([] { return Session::create(); });
}

void TPLReleaseLibrary(int instance)
{
    guarded<int>([&] { return Session::release(instance), 0; });
}

char* TPLCreateBuffer(int instance, int size)
{
    return guarded<char*>([&]() -> char* {
        const auto session = Session::find(instance);
        return session != nullptr ? session->buffers.create(size) : nullptr;
    });
}

void TPLAddToBuffer(int instance, char* buffer, const char* source, int size)
{
    if (const auto session = Session::find(instance))
        session->buffers.add(buffer, source, size);
}

void TPLReleaseBuffer(int instance, char* buffer)
{
    if (const auto session = Session::find(instance))
        session->buffers.release(buffer);
}

int TPLStringResultLength(int instance)
{
    const auto session = Session::find(instance);
    return session != nullptr ? lengthOf(session->wideResult.size()) : 0;
}

int TPLAnsiStringResultLength(int instance)
{
    const auto session = Session::find(instance);
    return session != nullptr ? lengthOf(session->byteResult.size()) : 0;
}

} // extern "C"
