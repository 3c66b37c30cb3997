#include "Outline.h"

#include "engine/document/Document.h"
#include "engine/files/EngineError.h"

#include "pdflibrary/ErrorCodes.h"

#include <set>

namespace engine {

namespace {

bool isEntry(QPDFObjectHandle object)
{
    return object.isIndirect() && object.isDictionary();
}

} // namespace

QPDFObjectHandle Outline::root()
{
    return m_document.key(m_document.catalog(), "/Outlines");
}

int Outline::first()
{
    return idFor(m_document.key(root(), "/First"), 0);
}

int Outline::firstChild(int id)
{
    return idFor(m_document.key(entry(id), "/First"), id);
}

int Outline::next(int id)
{
    return idFor(m_document.key(entry(id), "/Next"), id);
}

QPDFObjectHandle Outline::entry(int id)
{
    if (id < 1 || static_cast<std::size_t>(id) > m_entries.size())
        throw EngineError(ErrorCode::BadArgument);
    const QPDFObjGen object = m_entries[static_cast<std::size_t>(id) - 1].object;
    return m_document.fetched(m_document.pdf().getObjectByObjGen(object));
}

int Outline::idFor(QPDFObjectHandle object, int from)
{
    if (!isEntry(object))
        return 0;
    const auto [known, isNew] = m_ids.try_emplace(object.getObjGen(), static_cast<int>(m_entries.size()) + 1);
    if (isNew)
        m_entries.push_back({object.getObjGen(), from});
    if (m_entries[static_cast<std::size_t>(known->second) - 1].from != from)
        throw EngineError(ErrorCode::TooComplex);
    return known->second;
}

int Outline::count()
{
    std::set<QPDFObjGen> seen;
    std::vector<QPDFObjectHandle> waiting{m_document.key(root(), "/First")};
    while (!waiting.empty() && seen.size() < mostCounted) {
        const QPDFObjectHandle entry = waiting.back();
        waiting.pop_back();
        if (!isEntry(entry) || !seen.insert(entry.getObjGen()).second)
            continue;
        waiting.push_back(m_document.key(entry, "/Next"));
        waiting.push_back(m_document.key(entry, "/First"));
    }
    return static_cast<int>(seen.size());
}

} // namespace engine
