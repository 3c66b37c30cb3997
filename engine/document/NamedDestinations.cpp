#include "NamedDestinations.h"

#include "Document.h"

#include <set>
#include <string>
#include <vector>

namespace engine {

namespace {

QPDFObjectHandle valueInLeaf(Document& document, const QPDFObjectHandle& node, const std::string& key)
{
    QPDFObjectHandle names = document.key(node, "/Names");
    const int size = names.isArray() ? names.getArrayNItems() : 0;
    for (int index = 0; index + 1 < size; index += 2) {
        QPDFObjectHandle name = document.item(names, index);
        if (name.isString() && name.getStringValue() == key)
            return document.item(names, index + 1);
    }
    return QPDFObjectHandle::newNull();
}

bool limitsHold(Document& document, QPDFObjectHandle node, const std::string& key)
{
    QPDFObjectHandle limits = node.isDictionary() ? document.key(node, "/Limits") : node;
    if (!limits.isArray() || limits.getArrayNItems() != 2)
        return false;
    QPDFObjectHandle first = document.item(limits, 0);
    QPDFObjectHandle last = document.item(limits, 1);
    return first.isString() && last.isString() && first.getStringValue() <= key &&
           key <= last.getStringValue();
}

/// Searches a name tree node by node, each once: those whose limits hold the key, or all of them.
QPDFObjectHandle searchTree(Document& document, const QPDFObjectHandle& root, const std::string& key,
                            bool byLimits)
{
    std::vector<QPDFObjectHandle> waiting{root};
    std::set<QPDFObjGen> seen;
    while (!waiting.empty()) {
        QPDFObjectHandle node = waiting.back();
        waiting.pop_back();
        if (!node.isDictionary() || (node.isIndirect() && !seen.insert(node.getObjGen()).second))
            continue;
        QPDFObjectHandle value = valueInLeaf(document, node, key);
        if (!value.isNull())
            return value;
        QPDFObjectHandle kids = document.key(node, "/Kids");
        for (int kid = kids.isArray() ? kids.getArrayNItems() : 0; kid-- > 0;)
            if (!byLimits || limitsHold(document, document.item(kids, kid), key))
                waiting.push_back(document.item(kids, kid));
    }
    return QPDFObjectHandle::newNull();
}

QPDFObjectHandle inNameTree(Document& document, const std::string& key)
{
    QPDFObjectHandle names = document.key(document.catalog(), "/Names");
    QPDFObjectHandle root = names.isDictionary() ? document.key(names, "/Dests") : names;
    QPDFObjectHandle value = searchTree(document, root, key, true);
    return value.isNull() ? searchTree(document, root, key, false) : value;
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
