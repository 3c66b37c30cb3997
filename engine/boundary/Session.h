#pragma once

#include "Buffers.h"
#include "OpenDocument.h"
#include "engine/document/Destination.h"
#include "pdflibrary/ErrorCodes.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace engine {

/// What one library instance holds. A session is used by one thread at a time; different sessions share
/// nothing.
class Session
{
public:
    /// A new session's id from 1 up, 0 when there is none to be had.
    static int create();
    static void release(int instance);
    /// Null for an id that is not in use.
    static std::shared_ptr<Session> find(int instance);

    /// A call has no error until it sets one; the one of the call before stays known.
    void beginCall() { m_errorBefore = std::exchange(m_lastError, ErrorCode::None); }
    void setLastError(ErrorCode code) { m_lastError = code; }
    ErrorCode errorBefore() const { return m_errorBefore; }

    Buffers buffers;

    /// The results of the instance's last call; the pointers that the caller got point into them.
    std::wstring wideResult;
    std::string byteResult;

    /// Takes a document in and selects it.
    /// \returns its id.
    int add(std::unique_ptr<OpenDocument> document);
    /// Ids of the open documents, in the order in which they were opened.
    std::vector<int> documentIds() const;
    /// 0 when none is selected.
    int selectedId() const { return m_selected; }
    /// Throws UnknownDocument.
    void select(int id);
    /// Closes a document; when it was the selected one, none is selected afterwards. Throws UnknownDocument.
    void remove(int id);
    /// The selected document. Throws NoDocument.
    OpenDocument& document();

    /// An id for a destination of the selected document, valid until that document is removed. The same
    /// destination keeps its id.
    int destinationId(const Destination& destination);
    /// Throws UnknownDestination for an id that was not handed out for the selected document.
    const Destination& destination(int id);

private:
    struct KnownDestination
    {
        int documentId;
        Destination destination;
    };

    std::map<int, std::unique_ptr<OpenDocument>> m_documents;
    std::vector<std::optional<KnownDestination>> m_destinations; // at id - 1
    int m_selected = 0;
    int m_lastDocumentId = 0;
    ErrorCode m_lastError = ErrorCode::None;
    ErrorCode m_errorBefore = ErrorCode::None;
};

} // namespace engine
