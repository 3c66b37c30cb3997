#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <string>
#include <string_view>

namespace engine {

class Document;

/// The XMP packet of a document: the stream that the catalog names. It must not outlive the document, nor be
/// used after it was read whole.
class Metadata
{
public:
    /// No bytes are read yet.
    explicit Metadata(Document& document);

    /// Empty when the document has none.
    /// \throws EngineError MetadataUnreadable for a packet that cannot be decoded, is no text in UTF-8 or
    ///     UTF-16, or has more than `largest` bytes.
    std::wstring packet() const;

    /// Puts another packet in the stream, in its encoding, and keeps the stream's other entries; or makes a
    /// stream; or, for an empty packet, removes the entry. The document must have been read whole.
    /// \throws EngineError as packet().
    void replace(std::wstring_view packet);

    static constexpr std::size_t largest = 16u << 20;

private:
    std::string bytes() const;
    void fill(const std::string& bytes);

    Document& m_document;
    QPDFObjectHandle m_stream; ///< No stream when the document has none.
};

} // namespace engine
