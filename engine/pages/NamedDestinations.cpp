#include "NamedDestinations.h"

#include "engine/document/Document.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace engine {

namespace {

/// Searches a name tree node by node. Nodes, arrays and names that are shared are looked at once, so that the
/// work follows the size of the document.
class NameTreeSearch
{
public:
    /// \param byLimits looks only into nodes whose limits hold the key.
    NameTreeSearch(Document& document, const std::string& key, bool byLimits)
        : m_document(document), m_key(key), m_byLimits(byLimits)
    {}

    /// \returns null when the tree does not have the key.
    QPDFObjectHandle in(const QPDFObjectHandle& root)
    {
        std::vector<QPDFObjectHandle> waiting{root};
        while (!waiting.empty()) {
            const QPDFObjectHandle node = waiting.back();
            waiting.pop_back();
            QPDFObjectHandle value = inLeaf(node);
            if (!value.isNull())
                return value;
            addKids(node, waiting);
        }
        return QPDFObjectHandle::newNull();
    }

private:
    static bool isNew(std::set<QPDFObjGen>& seen, const QPDFObjectHandle& object)
    {
        return !object.isIndirect() || seen.insert(object.getObjGen()).second;
    }

    QPDFObjectHandle inLeaf(const QPDFObjectHandle& node)
    {
        QPDFObjectHandle names = m_document.key(node, "/Names");
        const int size = names.isArray() && isNew(m_leaves, names) ? names.getArrayNItems() : 0;
        for (int index = 0; index + 1 < size; index += 2) {
            QPDFObjectHandle name = m_document.item(names, index);
            if (isNew(m_names, name) && name.isString() && name.getStringValue() == m_key)
                return m_document.item(names, index + 1);
        }
        return QPDFObjectHandle::newNull();
    }

    void addKids(const QPDFObjectHandle& node, std::vector<QPDFObjectHandle>& waiting)
    {
        QPDFObjectHandle kids = m_document.key(node, "/Kids");
        for (int index = kids.isArray() && isNew(m_nodes, kids) ? kids.getArrayNItems() : 0; index-- > 0;) {
            const QPDFObjectHandle kid = m_document.item(kids, index);
            if (isNew(m_nodes, kid) && (!m_byLimits || limitsHold(kid)))
                waiting.push_back(kid);
        }
    }

    bool limitsHold(const QPDFObjectHandle& node)
    {
        QPDFObjectHandle limits = m_document.key(node, "/Limits");
        if (!limits.isArray() || limits.getArrayNItems() != 2)
            return false;
        const auto first = comparedWithKey(m_document.item(limits, 0));
        const auto last = comparedWithKey(m_document.item(limits, 1));
        return first && last && *first <= 0 && *last >= 0;
    }

    std::optional<int> comparedWithKey(QPDFObjectHandle name)
    {
        if (!name.isString())
            return std::nullopt;
        if (!name.isIndirect())
            return name.getStringValue().compare(m_key);
        const auto [known, isNew] = m_compared.try_emplace(name.getObjGen());
        if (isNew)
            known->second = name.getStringValue().compare(m_key);
        return known->second;
    }

    Document& m_document;
    const std::string& m_key;
    bool m_byLimits;
    std::set<QPDFObjGen> m_nodes; // and their arrays of kids
    std::set<QPDFObjGen> m_leaves;
    std::set<QPDFObjGen> m_names;
    std::map<QPDFObjGen, int> m_compared;
};

QPDFObjectHandle inNameTree(Document& document, const std::string& key)
{
    QPDFObjectHandle names = document.key(document.catalog(), "/Names");
    QPDFObjectHandle root = names.isDictionary() ? document.key(names, "/Dests") : names;
    QPDFObjectHandle value = NameTreeSearch(document, key, true).in(root);
    return value.isNull() ? NameTreeSearch(document, key, false).in(root) : value;
}

QPDFObjectHandle inDictionary(Document& document, const std::string& key)
{
    QPDFObjectHandle destinations = document.key(document.catalog(), "/Dests");
    return destinations.isDictionary() ? document.key(destinations, "/" + key) : QPDFObjectHandle::newNull();
}

} // namespace

QPDFObjectHandle findNamedDestination(Document& document, QPDFObjectHandle name)
{
    const std::string key = name.isName() ? name.getName().substr(1) : name.getStringValue();
    QPDFObjectHandle value = name.isName() ? inDictionary(document, key) : inNameTree(document, key);
    if (!value.isNull())
        return value;
    return name.isName() ? inNameTree(document, key) : inDictionary(document, key);
}

} // namespace engine
