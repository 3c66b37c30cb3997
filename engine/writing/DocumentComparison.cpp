#include "DocumentComparison.h"

#include "engine/document/Document.h"
#include "engine/files/EngineError.h"
#include "engine/pages/PageTree.h"

#include <qpdf/Buffer.hh>

#include <algorithm>
#include <cstring>
#include <utility>

namespace engine {

namespace {

using KeyNames = std::set<std::string>;

// Entries that describe how a file is stored; all others of a trailer belong to the document.
const KeyNames storageKeys{"/DecodeParms", "/DL", "/Encrypt", "/FDecodeParms", "/FFilter", "/F",
                           "/Filter",      "/ID", "/Index",   "/Length",       "/Prev",    "/Size",
                           "/Type",        "/W",  "/XRefStm"};
const KeyNames compressionKeys{"/DecodeParms", "/Filter", "/Length"};

KeyNames keysOf(QPDFObjectHandle dictionary, const KeyNames& without)
{
    KeyNames keys = dictionary.getKeys();
    std::erase_if(keys, [&](const std::string& key) { return without.contains(key); });
    return keys;
}

bool isSameData(const std::shared_ptr<Buffer>& one, const std::shared_ptr<Buffer>& other)
{
    return one->getSize() == other->getSize() &&
           (one->getSize() == 0 || std::memcmp(one->getBuffer(), other->getBuffer(), one->getSize()) == 0);
}

bool isSameStreamData(QPDFObjectHandle one, QPDFObjectHandle other)
{
    const bool asStored =
        one.getDict().getKey("/Filter").unparse() == other.getDict().getKey("/Filter").unparse();
    return asStored ? isSameData(one.getRawStreamData(), other.getRawStreamData())
                    : isSameData(one.getStreamData(), other.getStreamData());
}

/// Follows two documents' objects from their trailers, in step.
class Comparison
{
public:
    bool isSame(QPDF& one, QPDF& other)
    {
        bool same = haveSameKeys(one.getTrailer(), other.getTrailer(), storageKeys);
        while (same && !m_waiting.empty()) {
            const auto [object, written] = m_waiting.back();
            m_waiting.pop_back();
            same = haveSameValue(object, written);
        }
        return same;
    }

private:
    bool meet(QPDFObjectHandle one, QPDFObjectHandle other)
    {
        if (!one.isIndirect() && !other.isIndirect())
            return haveSameValue(one, other);
        const auto [known, isNew] = m_met.try_emplace({one.getObjGen(), other.getObjGen()}, true);
        if (isNew)
            m_waiting.emplace_back(one, other);
        return true;
    }

    bool haveSameKeys(QPDFObjectHandle one, QPDFObjectHandle other, const KeyNames& without)
    {
        const KeyNames keys = keysOf(one, without);
        return keys == keysOf(other, without) && std::all_of(keys.begin(), keys.end(), [&](const auto& key) {
                   return meet(one.getKey(key), other.getKey(key));
               });
    }

    bool haveSameItems(QPDFObjectHandle one, QPDFObjectHandle other)
    {
        const auto items = one.getArrayAsVector();
        const auto written = other.getArrayAsVector();
        return items.size() == written.size() &&
               std::equal(items.begin(), items.end(), written.begin(),
                          [this](const auto& item, const auto& same) { return meet(item, same); });
    }

    bool haveSameValue(QPDFObjectHandle one, QPDFObjectHandle other)
    {
        // A real number that is whole is read again as an integer.
        const bool areNumbers = one.isNumber() && other.isNumber();
        if (one.getTypeCode() != other.getTypeCode() && !areNumbers)
            return false;
        if (one.isStream())
            return haveSameKeys(one.getDict(), other.getDict(), compressionKeys) &&
                   isSameStreamData(one, other);
        if (one.isDictionary())
            return haveSameKeys(one, other, {});
        if (one.isArray())
            return haveSameItems(one, other);
        return one.isString() ? one.getStringValue() == other.getStringValue()
                              : one.unparseResolved() == other.unparseResolved();
    }

    std::map<std::pair<QPDFObjGen, QPDFObjGen>, bool> m_met;
    std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>> m_waiting;
};

/// Objects that hold something, those that only describe how a file is stored left out.
std::size_t objectCount(QPDF& pdf)
{
    std::size_t count = 0;
    for (const auto& [id, entry] : pdf.getXRefTable()) {
        QPDFObjectHandle object = pdf.getObject(id);
        const bool storage = object.isStreamOfType("/XRef") || object.isStreamOfType("/ObjStm");
        if (!storage && !object.isNull())
            ++count;
    }
    return count;
}

} // namespace

void requireSameContent(Document& document, Document& written)
{
    document.readWhole();
    written.readWhole();
    const bool same = PageTree(document).countAll() == PageTree(written).countAll() &&
                      Comparison().isSame(document.pdf(), written.pdf()) &&
                      objectCount(written.pdf()) >= objectCount(document.pdf()) && !written.anyWarnings();
    if (!same)
        throw EngineError(ErrorCode::RewritingLoses);
}

} // namespace engine
