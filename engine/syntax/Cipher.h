#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>

#include <string>

namespace engine {

/// Encrypts strings, or streams, as a document's security handler asks; does nothing for a
/// document without one.
class Cipher
{
public:
    enum class Use { Strings, Streams };

    /// \param pdf opened with a right password.
    /// \throws EngineError with CannotAppend for a method that is not known.
    Cipher(QPDF& pdf, Use use);

    /// `object` is the indirect object that the string is part of, or the stream. With AES every call
    /// gives other bytes.
    std::string encrypted(const std::string& plain, QPDFObjGen object) const;

    bool changesAnything() const { return m_method != Method::None; }

private:
    enum class Method { None, Rc4, Aes };

    void choose(int version, QPDF::encryption_method_e method);

    Method m_method = Method::None;
    std::string m_fileKey;
    int m_version = 0;
    int m_revision = 0;
};

} // namespace engine
