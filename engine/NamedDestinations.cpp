#include "engine/NamedDestinations.h"

#include <set>
#include <string>
#include <vector>

namespace engine {

namespace {

QPDFObjectHandle valueInLeaf(QPDFObjectHandle node, const std::string& key)
{
    QPDFObjectHandle names = node.getKey("/Names");
    const int size = names.isArray() ? names.getArrayNItems() : 0;
    for (int index = 0; index + 1 < size; index += 2) {
        QPDFObjectHandle name = names.getArrayItem(index);
        if (name.isString() && name.getStringValue() == key)
            return names.getArrayItem(index + 1);
    }
    return QPDFObjectHandle::newNull();
}

bool limitsHold(QPDFObjectHandle node, const std::string& key)
{
    QPDFObjectHandle limits = node.isDictionary() ? node.getKey("/Limits") : node;
    if (!limits.isArray() || limits.getArrayNItems() != 2)
        return false;
    QPDFObjectHandle first = limits.getArrayItem(0);
    QPDFObjectHandle last = limits.getArrayItem(1);
    return first.isString() && last.isString() && first.getStringValue() <= key &&
           key <= last.getStringValue();
}

/// Searches a name tree node by node, each once: those whose limits hold the key, or all of them.
QPDFObjectHandle searchTree(QPDFObjectHandle root, const std::string& key, bool byLimits)
{
    std::vector<QPDFObjectHandle> waiting{root};
    std::set<QPDFObjGen> seen;
    while (!waiting.empty()) {
        QPDFObjectHandle node = waiting.back();
        waiting.pop_back();
        if (!node.isDictionary() || (node.isIndirect() && !seen.insert(node.getObjGen()).second))
            continue;
        QPDFObjectHandle value = valueInLeaf(node, key);
        if (!value.isNull())
            return value;
        QPDFObjectHandle kids = node.getKey("/Kids");
        for (int kid = kids.isArray() ? kids.getArrayNItems() : 0; kid-- > 0;)
            if (!byLimits || limitsHold(kids.getArrayItem(kid), key))
                waiting.push_back(kids.getArrayItem(kid));
    }
    return QPDFObjectHandle::newNull();
}

QPDFObjectHandle inNameTree(QPDFObjectHandle catalog, const std::string& key)
{
    QPDFObjectHandle names = catalog.getKey("/Names");
    QPDFObjectHandle root = names.isDictionary() ? names.getKey("/Dests") : names;
    QPDFObjectHandle value = searchTree(root, key, true);
    return value.isNull() ? searchTree(root, key, false) : value;
}

QPDFObjectHandle inDictionary(QPDFObjectHandle catalog, const std::string& key)
{
    QPDFObjectHandle destinations = catalog.getKey("/Dests");
    return destinations.isDictionary() ? destinations.getKey("/" + key) : QPDFObjectHandle::newNull();
}

} // namespace

QPDFObjectHandle findNamedDestination(QPDFObjectHandle catalog, QPDFObjectHandle name)
{
    const std::string key = name.isName() ? name.getName().substr(1) : name.getStringValue();
    QPDFObjectHandle value = name.isName() ? inDictionary(catalog, key) : inNameTree(catalog, key);
    if (!value.isNull())
        return value;
    return name.isName() ? inNameTree(catalog, key) : inDictionary(catalog, key);
}

} // namespace engine
