#pragma once

#include "support/documents/PdfBuilder.h"

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

/// Encrypted by a revision, with or without the metadata; these passwords are bytes as they go into the key.
inline std::string encryptedBy(int revision, const std::string& bytes, const char* user = "",
                               bool metadata = true)
{
    return rewritten(bytes, [=](QPDFWriter& writer) {
        encrypt(writer, revision, user, "owner");
        if (!metadata)
            writer.setR6EncryptionParameters(user, "owner", true, true, true, true, true, true, qpdf_r3p_full,
                                             false);
    });
}

inline std::string inObjectStreams(const std::string& bytes)
{
    return rewritten(bytes, [](QPDFWriter& writer) {
        writer.setDeterministicID(true);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setCompressStreams(false);
    });
}

/// A document with one more object, which is in an object stream that only readers of cross-reference streams
/// know of. Three objects more take the numbers behind it.
inline std::string hybrid(PdfBuilder builder, int number, const std::string& body)
{
    const std::string plain = builder.object(number + 1, "null").bytes();
    const std::size_t table = plain.rfind("xref\n0");
    std::string out = plain.substr(0, table);
    const auto offsetNow = [&] {
        return std::string{static_cast<char>(out.size() >> 8), static_cast<char>(out.size() & 0xff)};
    };
    const auto numbered = [number](int behind) { return std::to_string(number + behind); };
    const std::string parts = offsetNow();
    const std::string content = numbered(0) + " 0 " + body;
    out += numbered(2) + " 0 obj\n<< /Type /ObjStm /N 1 /First " + std::to_string(numbered(0).size() + 3) +
           " /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "\nendstream\nendobj\n";
    const std::size_t stream = out.size();
    const std::string none(1, '\0');
    const std::string entries = "\x02" + none + static_cast<char>(number + 2) + none + "\x01" + parts + none +
                                "\x01" + offsetNow() + none;
    out += numbered(3) + " 0 obj\n<< /Type /XRef /Size " + numbered(4) + " /Index [" + numbered(0) + " 1 " +
           numbered(2) + " 2] /W [1 2 1] /Length 12 >>\nstream\n" + entries + "\nendstream\nendobj\n";
    const std::string start = std::to_string(out.size());
    std::string end = plain.substr(table, plain.rfind("startxref") - table);
    end.insert(end.rfind(" >>"), " /XRefStm " + std::to_string(stream));
    return out + end + "startxref\n" + start + "\n%%EOF\n";
}

/// The last one of a text replaced; empty without one.
inline std::string replaced(std::string bytes, const std::string& old, const std::string& with)
{
    const std::size_t at = bytes.rfind(old);
    return at == std::string::npos ? std::string() : bytes.replace(at, old.size(), with);
}
