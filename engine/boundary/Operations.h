#pragma once

#include <string>
#include <string_view>

namespace engine {

class Session;

/// The operations that the library really has, each named after its row in the table. docs/engine.md tells
/// each one's numbers and codes as the library's callers see them.
///
/// For all of them: the session is the caller's instance, used by this thread alone during the call. Strings
/// are views that are valid during the call; results are values. An operation works on the selected document
/// unless it says otherwise. Those that change or find something return 1 for done, also where nothing had to
/// change. A failure is thrown as an EngineError, which becomes 0 or an empty string for the caller and the
/// code of LastErrorCode, and leaves the document as it was: NoDocument where none is selected, BadArgument
/// for a number outside its range, UnknownDocument, UnknownPage, UnknownDestination for an id or number that
/// is none. std::bad_alloc becomes OutOfMemory. Documents are read piece by piece: any operation may run into
/// damage there and throw Damaged.
namespace operations {

// DocumentOperations.cpp
/// Opens a document, which is selected then, with its page 1. Only regular files are opened.
/// \param fileName as wideFromFileName makes it.
/// \param password tried as user and as owner password, and last the empty one.
int LoadFromFile(Session& session, std::wstring_view fileName, std::wstring_view password);
/// The same for bytes, which are copied.
int LoadFromString(Session& session, std::string_view source, std::wstring_view password);
/// Writes the whole document anew, to a new file that then takes the name.
int SaveToFile(Session& session, std::wstring_view fileName);
/// Writes the original bytes and, after them, the changed objects, to a new file that then takes the name.
/// \throws EngineError NothingChanged; CannotAppend for a document that has to be written whole.
int AppendToFile(Session& session, std::wstring_view fileName);
/// What AppendToFile writes behind the original bytes, in the form of an UpdateForm (ErrorCodes.h).
/// \throws EngineError as AppendToFile; NotInPlace where it may be appended to a copy only.
std::string AppendToString(Session& session, int form);
/// The whole document, written anew.
std::string SaveToString(Session& session);
/// The number of open documents.
int DocumentCount(Session& session);
/// \param index from 1, in the order of opening.
int GetDocumentID(Session& session, int index);
int SelectDocument(Session& session, int documentId);
/// 0 when none is selected, which is no failure.
int SelectedDocument(Session& session);
/// Closes a document without saving it.
int RemoveDocument(Session& session, int documentId);
/// The name as it was given; empty for a document from memory.
std::wstring GetDocumentFileName(Session& session);
/// 1 when the cross-reference was wrong and the file had to be searched for its objects, else 0.
int GetDocumentRepaired(Session& session);
/// 1 or 0.
int IsLinearized(Session& session);
/// An EncryptionStatus (pdflibrary/ErrorCodes.h).
int EncryptionStatus(Session& session);
/// \param item a SecurityItem (pdflibrary/ErrorCodes.h); others are not available.
int SecurityInfo(Session& session, int item);
/// The ErrorCode of the session's operation before this one. Needs no document; never fails.
int LastErrorCode(Session& session);
/// Needs no document; never fails.
std::wstring LibraryVersion(Session& session);

// InformationOperations.cpp
/// \param key 0 the PDF version, 1 title, 2 author, 3 subject, 4 keywords, 5 creator, 6 producer, 7 and 8 the
///     dates of creation and modification as they stand in the document. Empty where the document has none.
std::wstring GetInformation(Session& session, int key);
/// \param key 1 to 8 as above. \param value empty to remove the entry.
int SetInformation(Session& session, int key, std::wstring_view value);

// CatalogOperations.cpp
/// \param key "Lang", "PageMode", "PageLayout" or "Version".
/// \returns the text or the name as it stands in the catalog; empty where it has none, or one of a wrong type.
std::wstring GetCatalogInformation(Session& session, std::wstring_view key);
/// \param key "Lang"; the names have operations of their own. \param value empty to remove the entry.
int SetCatalogInformation(Session& session, std::wstring_view key, std::wstring_view value);
/// The document's XMP packet, without a byte order mark; empty where it has none.
/// \throws EngineError MetadataUnreadable for what cannot be decoded, is no text, or is too large.
std::wstring GetDocumentMetadata(Session& session);
/// The other entries of the stream stay, and the packet's encoding; it is no longer compressed.
/// \param packet empty to remove the entry.
/// \throws EngineError MetadataUnreadable as above.
int SetDocumentMetadata(Session& session, std::wstring_view packet);

// ViewOperations.cpp, in the numbers of pdflibrary/ViewNumbers.h. An entry that is missing or of a wrong type
// reads as the document's default. A setter whose value is there already marks nothing as changed.

/// A PageMode; PageOnly when the document has none.
int GetPageMode(Session& session);
/// \param mode NoPageMode removes the entry.
int SetPageMode(Session& session, int mode);
/// A PageLayout; NoPageLayout when the document has none.
int GetPageLayout(Session& session);
/// \param layout NoPageLayout removes the entry.
int SetPageLayout(Session& session, int layout);
/// The number of a preference's value; when the document has none 0, for options from Direction on
/// NoPreference.
/// \param option one of pdflibrary/ViewerPreferences.h. With AsWritten added a preference that the document
///     has not is NoPreference for every option, and one that means nothing InvalidPreference; a WrittenEntry
///     is an option then, too.
int GetViewerPreferences(Session& session, int option);
/// \param value what the option takes, or NoPreference to remove the entry; the other preferences stay as they
///     are, and so does a dictionary that becomes empty.
int SetViewerPreferences(Session& session, int option, int value);
/// The id of the destination that the document opens at; 0, which is no failure, when it has none or one that
/// cannot be followed. Ids stay valid until their document is removed.
int GetOpenActionDestination(Session& session);
/// Lets the document open at a page.
/// \param page from 1.
/// \param zoom percent, 0 for none; used by Zoomed alone.
/// \param destType a DestinationType.
/// \param left, top, right, bottom finite; points of default user space. FitRectangle shows them as they are.
int SetOpenActionDestinationFull(Session& session, int page, int zoom, int destType, double left, double top,
                                 double right, double bottom);
/// Whatever kind of action it is.
int RemoveOpenAction(Session& session);
/// A DestinationType; of an id that GetOpenActionDestination gave.
int GetDestType(Session& session, int destId);
/// The page, from 1.
int GetDestPage(Session& session, int destId);
/// \param valueKey a DestinationValue. 0 for what the destination leaves open. DestinationForm is a
///     DestinationType, or 0 for a type that is not known.
double GetDestValue(Session& session, int destId, int valueKey);
/// The name of a named destination, else empty.
std::wstring GetDestName(Session& session, int destId);

// OpenActionOperations.cpp
/// The type of the open action as ISO 32000 names it: "GoTo" for destinations too, "JavaScript", "URI", ...;
/// "Unknown" for what is no action, empty when the document has none.
/// \param actionId 0, the open action.
std::wstring GetActionType(Session& session, int actionId);
/// Changes the magnification of the destination that the document opens at. Everything else about it stays;
/// a named one becomes explicit.
/// \param destId as GetOpenActionDestination gives it now; its type is Zoomed.
/// \param valueKey DestinationZoom.
/// \param value percent, 0 for none; four decimal places are kept.
int SetDestValue(Session& session, int destId, int valueKey, double value);

// OutlineOperations.cpp
/// The number of bookmarks, each counted once; no more than Outline::mostCounted.
int OutlineCount(Session& session);
/// The id of the first bookmark at the top, 0 when there is none. Ids stay valid until their document is
/// removed.
int GetFirstOutline(Session& session);
/// The first bookmark below one, and the next one beside it; 0 when there is none.
/// \throws EngineError TooComplex where bookmarks lead in a circle.
int GetFirstChildOutline(Session& session, int outlineId);
int GetNextOutline(Session& session, int outlineId);
std::wstring OutlineTitle(Session& session, int outlineId);
/// The page that it leads to, from 1; 0 when it leads to none.
int GetOutlinePage(Session& session, int outlineId);
/// OutlineStyle flags.
int GetOutlineStyle(Session& session, int outlineId);

// PageOperations.cpp
int PageCount(Session& session);
/// \param page from 1.
int SelectPage(Session& session, int page);
int SelectedPage(Session& session);
/// Of the selected page, in points of default user space. A box that the page has not is that which it
/// defaults to.
/// \param box a PageBox.
/// \param dimension a BoxDimension.
double GetPageBox(Session& session, int box, int dimension);
/// The media box's, in points.
double PageWidth(Session& session);
double PageHeight(Session& session);
/// 0, 90, 180 or 270, clockwise.
int PageRotation(Session& session);

// FontOperations.cpp
/// The names of the machine's font families, sorted, with CR LF between them. Needs no document.
/// \param charset 2, all.
/// \param options 1, names of families. Other numbers are refused.
std::wstring GetInstalledFontsByCharset(Session& session, int charset, int options);

} // namespace operations
} // namespace engine
