#include "Session.h"

#include "engine/files/EngineError.h"

#include <qpdf/QPDF.hh>

#include <atomic>
#include <climits>
#include <mutex>
#include <unordered_map>

namespace engine {

namespace {

/// Builds libqpdf's function-local statics before the registry, so that they outlive it, and with it the
/// documents that are still open when the program ends.
void prepareForLateClosing()
{
    const auto pdf = QPDF::create();
    pdf->emptyPDF();
    pdf->getRoot();
}

/// A host's own static objects may call the library when its registry has gone already.
constinit std::atomic<bool> isOver{false};

struct Registry
{
    Registry() { prepareForLateClosing(); }
    ~Registry() { isOver = true; }

    std::mutex mutex;
    std::unordered_map<int, std::shared_ptr<Session>> sessions;
    int lastId = 0;
};

/// Null at the end of the program, when all sessions have been closed.
Registry* registry()
{
    if (isOver)
        return nullptr;
    static Registry instance;
    return &instance;
}

} // namespace

int Session::create()
{
    auto session = std::make_shared<Session>();
    Registry* const all = registry();
    if (all == nullptr)
        return 0;
    const std::scoped_lock lock(all->mutex);
    if (all->lastId == INT_MAX)
        return 0;
    all->sessions.emplace(all->lastId + 1, std::move(session));
    return ++all->lastId;
}

void Session::release(int instance)
{
    Registry* const all = registry();
    if (all == nullptr)
        return;
    std::unique_lock lock(all->mutex);
    const auto released = all->sessions.extract(instance);
    // Closing its documents can take a while: other sessions are not to wait for that.
    lock.unlock();
}

std::shared_ptr<Session> Session::find(int instance)
{
    Registry* const all = registry();
    if (all == nullptr)
        return nullptr;
    const std::scoped_lock lock(all->mutex);
    const auto found = all->sessions.find(instance);
    return found == all->sessions.end() ? nullptr : found->second;
}

int Session::add(std::unique_ptr<OpenDocument> document)
{
    m_documents.emplace(m_lastDocumentId + 1, std::move(document));
    return m_selected = ++m_lastDocumentId;
}

std::vector<int> Session::documentIds() const
{
    std::vector<int> ids;
    for (const auto& [id, document] : m_documents)
        ids.push_back(id);
    return ids;
}

void Session::select(int id)
{
    if (m_documents.count(id) == 0)
        throw EngineError(ErrorCode::UnknownDocument);
    m_selected = id;
}

void Session::remove(int id)
{
    if (m_documents.erase(id) == 0)
        throw EngineError(ErrorCode::UnknownDocument);
    for (auto& known : m_destinations)
        if (known && known->documentId == id)
            known.reset();
    if (m_selected == id)
        m_selected = 0;
}

OpenDocument& Session::document()
{
    if (m_selected == 0)
        throw EngineError(ErrorCode::NoDocument);
    return *m_documents.at(m_selected);
}

int Session::destinationId(const Destination& destination)
{
    std::size_t freeSlot = m_destinations.size();
    for (std::size_t slot = m_destinations.size(); slot-- > 0;) {
        const auto& known = m_destinations[slot];
        if (!known)
            freeSlot = slot;
        else if (known->documentId == m_selected && known->destination == destination)
            return static_cast<int>(slot) + 1;
    }
    if (freeSlot == m_destinations.size())
        m_destinations.emplace_back();
    m_destinations[freeSlot] = KnownDestination{m_selected, destination};
    return static_cast<int>(freeSlot) + 1;
}

const Destination& Session::destination(int id)
{
    document();
    const auto slot = static_cast<std::size_t>(id) - 1; // a huge number for 0 and below
    if (slot >= m_destinations.size() || !m_destinations[slot] ||
        m_destinations[slot]->documentId != m_selected)
        throw EngineError(ErrorCode::UnknownDestination);
    return m_destinations[slot]->destination;
}

void Session::changeDestination(int id, const Destination& changed)
{
    destination(id);
    m_destinations[static_cast<std::size_t>(id) - 1]->destination = changed;
}

} // namespace engine
