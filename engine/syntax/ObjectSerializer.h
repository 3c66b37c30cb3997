#pragma once

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>
#include <vector>

namespace engine {

class Cipher;

/// Writes objects in PDF syntax. It never follows a reference, so writing an object reads no other one.
class ObjectSerializer
{
public:
    /// \param cipher encrypts the strings; null writes them as they are. It must outlive the serializer.
    explicit ObjectSerializer(const Cipher* cipher = nullptr) : m_cipher(cipher) {}

    /// \param owner the indirect object that the value is, or is part of.
    /// \throws EngineError with CannotAppend for a stream or what is no PDF object, and with TooComplex for
    ///     arrays and dictionaries nested more deeply than libqpdf reads.
    std::string write(QPDFObjectHandle value, QPDFObjGen owner = {});

    /// A dictionary with these entries, which belongs to no object: its strings are not encrypted.
    std::string write(const std::map<std::string, QPDFObjectHandle>& entries);

    /// The references met by all calls of write(), in that order.
    const std::vector<QPDFObjGen>& references() const { return m_references; }

private:
    void writeValue(QPDFObjectHandle value, int depth);
    void writeDirect(QPDFObjectHandle value, int depth);
    void writeArray(QPDFObjectHandle array, int depth);
    void writeDictionary(const std::map<std::string, QPDFObjectHandle>& entries, int depth);
    void writeString(QPDFObjectHandle string);

    const Cipher* m_cipher;
    QPDFObjGen m_owner;
    std::string m_text;
    std::vector<QPDFObjGen> m_references;
};

} // namespace engine
