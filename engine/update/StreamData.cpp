#include "StreamData.h"

#include "engine/files/EngineError.h"
#include "engine/syntax/Cipher.h"

#include <qpdf/Buffer.hh>

namespace engine {

namespace {

/// Below version 4 there are no crypt filters: everything is encrypted.
bool hasCryptFilters(QPDF& pdf)
{
    QPDFObjectHandle version = pdf.getTrailer().getKey("/Encrypt").getKey("/V");
    return version.isInteger() && version.getIntValue() >= 4;
}

/// Whether a crypt filter of the stream lets it be stored as it is.
bool hasIdentityFilter(QPDFObjectHandle dictionary)
{
    if (!dictionary.getKey("/Filter").isOrHasName("/Crypt"))
        return false;
    QPDFObjectHandle parameters = dictionary.getKey("/DecodeParms");
    if (parameters.isArray())
        parameters =
            parameters.getArrayNItems() > 0 ? parameters.getArrayItem(0) : QPDFObjectHandle::newNull();
    if (!parameters.isDictionary() || !parameters.getKey("/Name").isNameAndEquals("/Identity"))
        throw EngineError(ErrorCode::CannotAppend, "a stream has an encryption of its own");
    return true;
}

bool isPlainMetadata(QPDF& pdf, QPDFObjectHandle dictionary)
{
    QPDFObjectHandle encrypted = pdf.getTrailer().getKey("/Encrypt").getKey("/EncryptMetadata");
    return encrypted.isBool() && !encrypted.getBoolValue() &&
           dictionary.getKey("/Type").isNameAndEquals("/Metadata");
}

} // namespace

std::string storedStreamData(QPDF& pdf, QPDFObjectHandle stream)
{
    const auto buffer = stream.getRawStreamData();
    std::string data(reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize());
    const QPDFObjectHandle dictionary = stream.getDict();
    const bool isPlain =
        !pdf.isEncrypted() ||
        (hasCryptFilters(pdf) && (hasIdentityFilter(dictionary) || isPlainMetadata(pdf, dictionary)));
    return isPlain ? data : Cipher(pdf, Cipher::Use::Streams).encrypted(data, stream.getObjGen());
}

QPDFObjectHandle streamDictionary(QPDFObjectHandle stream, std::size_t length)
{
    QPDFObjectHandle dictionary = stream.getDict().shallowCopy();
    dictionary.replaceKey("/Length", QPDFObjectHandle::newInteger(static_cast<long long>(length)));
    return dictionary;
}

} // namespace engine
