#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <functional>
#include <string>

/// A document written anew by libqpdf with these settings.
inline std::string rewritten(const std::string& bytes, const std::function<void(QPDFWriter&)>& set)
{
    QPDF pdf;
    pdf.processMemoryFile("document", bytes.data(), bytes.size());
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    set(writer);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return std::string(reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize());
}

/// Encrypts by a revision of the standard security handler; without `all` nothing may be modified.
inline void encrypt(QPDFWriter& writer, int revision, const char* user, const char* owner, bool all = true,
                    bool aes = true)
{
    const auto print = qpdf_r3p_full;
    if (revision == 2)
        writer.setR2EncryptionParametersInsecure(user, owner, true, all, true, true);
    else if (revision == 3)
        writer.setR3EncryptionParametersInsecure(user, owner, true, true, true, true, true, all, print);
    else if (revision == 4)
        writer.setR4EncryptionParametersInsecure(user, owner, true, true, true, true, true, all, print, true,
                                                 aes);
    else if (revision == 5)
        writer.setR5EncryptionParameters(user, owner, true, true, true, true, true, all, print, true);
    else
        writer.setR6EncryptionParameters(user, owner, true, true, true, true, true, all, print, true);
}
