#pragma once

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <vector>

namespace engine {

class Document;

/// The document's bookmarks, read as they are asked for. Each is an indirect object that one other leads to:
/// the first child of its parent, or the next one of its sibling. Whatever else leads to it closes a circle.
class Outline
{
public:
    explicit Outline(Document& document) : m_document(document) {}

    /// Ids, from 1; 0 where there is none. They stay the same.
    int first();
    /// Both throw EngineError: TooComplex where the way leads to an entry that was reached by another one,
    /// BadArgument for an id that was not given out.
    int firstChild(int id);
    int next(int id);

    /// The entry's dictionary. Throws EngineError BadArgument.
    QPDFObjectHandle entry(int id);

    /// How many entries can be reached, each counted once; no more than `mostCounted`.
    int count();

    static constexpr int mostCounted = 100'000;

private:
    struct Entry
    {
        QPDFObjGen object;
        int from; ///< The id of the one that leads here, 0 for the root.
    };

    QPDFObjectHandle root();
    int idFor(QPDFObjectHandle object, int from);

    Document& m_document;
    std::vector<Entry> m_entries; ///< At id - 1.
    std::map<QPDFObjGen, int> m_ids;
};

} // namespace engine
