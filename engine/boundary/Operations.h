#pragma once

#include <string>
#include <string_view>

namespace engine {

class Session;

/// The operations that the library really has, each named after its row in the table. What they do, what
/// their numbers mean and how they fail is told in docs/engine.md.
namespace operations {

// DocumentOperations.cpp
int LoadFromFile(Session& session, std::wstring_view fileName, std::wstring_view password);
int LoadFromString(Session& session, std::string_view source, std::wstring_view password);
int SaveToFile(Session& session, std::wstring_view fileName);
int AppendToFile(Session& session, std::wstring_view fileName);
std::string SaveToString(Session& session);
int DocumentCount(Session& session);
int GetDocumentID(Session& session, int index);
int SelectDocument(Session& session, int documentId);
int SelectedDocument(Session& session);
int RemoveDocument(Session& session, int documentId);
std::wstring GetDocumentFileName(Session& session);
int GetDocumentRepaired(Session& session);
int IsLinearized(Session& session);
int EncryptionStatus(Session& session);
int SecurityInfo(Session& session, int item);
int LastErrorCode(Session& session);
std::wstring LibraryVersion(Session& session);

// InformationOperations.cpp
std::wstring GetInformation(Session& session, int key);
int SetInformation(Session& session, int key, std::wstring_view value);

// ViewOperations.cpp
int GetPageMode(Session& session);
int SetPageMode(Session& session, int mode);
int GetPageLayout(Session& session);
int SetPageLayout(Session& session, int layout);
int GetViewerPreferences(Session& session, int option);
int SetViewerPreferences(Session& session, int option, int value);
int GetOpenActionDestination(Session& session);
int SetOpenActionDestinationFull(Session& session, int page, int zoom, int destType, double left, double top,
                                 double right, double bottom);
int RemoveOpenAction(Session& session);
int GetDestType(Session& session, int destId);
int GetDestPage(Session& session, int destId);
double GetDestValue(Session& session, int destId, int valueKey);
std::wstring GetDestName(Session& session, int destId);

// PageOperations.cpp
int PageCount(Session& session);
int SelectPage(Session& session, int page);
int SelectedPage(Session& session);
double GetPageBox(Session& session, int box, int dimension);
double PageWidth(Session& session);
double PageHeight(Session& session);
int PageRotation(Session& session);

// FontOperations.cpp
std::wstring GetInstalledFontsByCharset(Session& session, int charset, int options);

} // namespace operations
} // namespace engine
