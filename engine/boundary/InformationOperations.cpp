#include "Arguments.h"
#include "Operations.h"
#include "Session.h"
#include "engine/document/Text.h"
#include "pdflibrary/ViewNumbers.h"

#include <algorithm>
#include <string>

namespace engine::operations {

using namespace pdflibrary;

namespace {

/// The higher of the versions that the header and the catalog state, "1.7".
std::string versionOf(Document& document)
{
    const std::string header = document.pdf().getPDFVersion();
    QPDFObjectHandle stated = document.key(document.catalog(), "/Version");
    return stated.isName() ? std::max(header, stated.getName().substr(1)) : header;
}

/// The dictionary that an entry is written to, marked as changed: an object of its own, as ISO 32000 asks.
QPDFObjectHandle changedInformation(Document& document)
{
    QPDFObjectHandle information = document.trailerKey("/Info");
    if (!information.isIndirect() || !information.isDictionary()) {
        information = document.makeIndirect(information.isDictionary() ? information.shallowCopy()
                                                                       : QPDFObjectHandle::newDictionary());
        document.setTrailerKey("/Info", information);
    }
    document.markChanged(information);
    return information;
}

} // namespace

std::wstring GetInformation(Session& session, int key)
{
    Document& document = session.document().document;
    requireWithin(key, InformationVersion, lastOf(informationNames));
    if (key == InformationVersion)
        return wideFromUtf8(versionOf(document));
    QPDFObjectHandle value = document.key(document.trailerKey("/Info"), rowOf(informationNames, key));
    return value.isString() ? wideFromUtf8(value.getUTF8Value()) : std::wstring();
}

int SetInformation(Session& session, int key, std::wstring_view value)
{
    Document& document = session.document().document;
    requireWithin(key, InformationTitle, lastOf(informationNames));
    const char* const name = rowOf(informationNames, key);
    const std::string text = utf8FromWide(value);
    if (!saysText(document.key(document.trailerKey("/Info"), name), text))
        changedInformation(document).replaceKey(name, entryForText(text));
    return 1;
}

} // namespace engine::operations
