#pragma once

#include "Buffers.h"
#include "engine/pages/Destination.h"
#include "engine/pages/OpenDocument.h"
#include "pdflibrary/ErrorCodes.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace engine {

/// What one library instance holds: buffers, open documents, destinations, the last result and the last
/// error. A session is used by one thread at a time; different sessions share nothing but the list of their
/// ids, which may be used from any thread.
class Session
{
public:
    /// Makes a session, which the list of ids owns.
    /// \returns its id from 1 up, never used twice; 0 when they are used up.
    static int create();
    /// Takes a session off the list. It ends with the last call that is still at work in it; its documents
    /// are closed without being saved. An unknown id is ignored.
    static void release(int instance);
    /// \returns the session, kept alive as long as the pointer; null for an id that is not in use.
    static std::shared_ptr<Session> find(int instance);

    /// A call has no error until it sets one; the one of the call before stays known.
    void beginCall() { m_errorBefore = std::exchange(m_lastError, ErrorCode::None); }
    /// What the call that is under way failed of; the guard around it sets it for what is thrown.
    void setLastError(ErrorCode code) { m_lastError = code; }
    /// What LastErrorCode tells.
    ErrorCode errorBefore() const { return m_errorBefore; }

    /// The strings that the caller hands over.
    Buffers buffers;

    /// The results of the instance's last call; the pointers that the caller got point into them.
    std::wstring wideResult;
    std::string byteResult;

    /// Takes a document in and selects it.
    /// \returns its id, from 1.
    int add(std::unique_ptr<OpenDocument> document);
    /// Ids of the open documents, in the order in which they were opened. An id is never used twice.
    std::vector<int> documentIds() const;
    /// 0 when none is selected.
    int selectedId() const { return m_selected; }
    /// \throws EngineError UnknownDocument; then the selection stays.
    void select(int id);
    /// Closes a document without saving it; when it was the selected one, none is selected afterwards.
    /// \throws EngineError UnknownDocument.
    void remove(int id);
    /// The selected document, valid until it is removed.
    /// \throws EngineError NoDocument.
    OpenDocument& document();

    /// An id for a destination of the selected document, valid until that document is removed. The same
    /// destination keeps its id.
    int destinationId(const Destination& destination);
    /// The destination of an id, valid until the next call of destinationId().
    /// \throws EngineError UnknownDestination for an id that was not handed out for the selected document.
    const Destination& destination(int id);
    /// Lets an id stand for what became of its destination.
    /// \throws EngineError as destination().
    void changeDestination(int id, const Destination& changed);

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
