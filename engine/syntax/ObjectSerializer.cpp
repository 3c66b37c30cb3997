#include "ObjectSerializer.h"

#include "Cipher.h"
#include "engine/files/EngineError.h"

#include <qpdf/QUtil.hh>

#include <cctype>
#include <string_view>

namespace engine {

namespace {

constexpr int deepest = 500;

// The bytes of a signature are the one string in an object that is never encrypted.
bool isSignature(const std::map<std::string, QPDFObjectHandle>& entries)
{
    const auto type = entries.find("/Type");
    const auto contents = entries.find("/Contents");
    return type != entries.end() && contents != entries.end() && entries.contains("/ByteRange") &&
           QPDFObjectHandle(type->second).isNameAndEquals("/Sig") && !contents->second.isIndirect() &&
           QPDFObjectHandle(contents->second).isString();
}

bool isHexDigit(char character)
{
    return std::isxdigit(static_cast<unsigned char>(character)) != 0;
}

/// A name as libqpdf holds it: escapes resolved, a zero byte in the place of a number sign that begins none.
std::string escapedName(std::string_view name)
{
    constexpr std::string_view delimiters = "#()<>[]{}/%";
    std::string text = "/";
    bool behindNumberSign = false;
    for (const char character : name.substr(1)) {
        const bool plain =
            character > ' ' && character <= '~' && delimiters.find(character) == delimiters.npos;
        if (character == '\0')
            text += '#';
        else if (plain && !(behindNumberSign && isHexDigit(character)))
            text += character;
        else
            text += "#" + QUtil::hex_encode(std::string(1, character));
        behindNumberSign = character == '\0';
    }
    return text;
}

} // namespace

std::string ObjectSerializer::write(QPDFObjectHandle value, QPDFObjGen owner)
{
    m_owner = owner;
    m_text.clear();
    writeDirect(value, 0);
    return m_text;
}

std::string ObjectSerializer::write(const std::map<std::string, QPDFObjectHandle>& entries)
{
    m_text.clear();
    writeDictionary(entries, 0);
    return m_text;
}

void ObjectSerializer::writeValue(QPDFObjectHandle value, int depth)
{
    if (!value.isIndirect()) {
        writeDirect(value, depth);
        return;
    }
    m_references.push_back(value.getObjGen());
    m_text += value.getObjGen().unparse(' ') + " R";
}

void ObjectSerializer::writeDirect(QPDFObjectHandle value, int depth)
{
    if (depth > deepest)
        throw EngineError(ErrorCode::TooComplex);
    switch (value.getTypeCode()) {
    case ::ot_array:
        return writeArray(value, depth);
    case ::ot_dictionary:
        return writeDictionary(value.getDictAsMap(), depth);
    case ::ot_string:
        return writeString(value);
    case ::ot_name:
        m_text += escapedName(value.getName());
        return;
    case ::ot_null:
    case ::ot_boolean:
    case ::ot_integer:
    case ::ot_real:
        m_text += value.unparseResolved();
        return;
    default:
        throw EngineError(ErrorCode::CannotAppend,
                          std::string("cannot append an object of type ") + value.getTypeName());
    }
}

void ObjectSerializer::writeArray(QPDFObjectHandle array, int depth)
{
    m_text += "[";
    for (const QPDFObjectHandle& item : array.getArrayAsVector()) {
        m_text += " ";
        writeValue(item, depth + 1);
    }
    m_text += " ]";
}

void ObjectSerializer::writeDictionary(const std::map<std::string, QPDFObjectHandle>& entries, int depth)
{
    const bool signature = isSignature(entries);
    m_text += "<<";
    for (auto [key, value] : entries) {
        m_text += " " + escapedName(key) + " ";
        if (signature && key == "/Contents")
            m_text += value.unparseBinary();
        else
            writeValue(value, depth + 1);
    }
    m_text += " >>";
}

void ObjectSerializer::writeString(QPDFObjectHandle string)
{
    if (m_cipher == nullptr || !m_cipher->changesAnything()) {
        m_text += string.unparseResolved();
        return;
    }
    const std::string bytes = m_cipher->encrypted(string.getStringValue(), m_owner);
    m_text += QPDFObjectHandle::newString(bytes).unparseBinary();
}

} // namespace engine
