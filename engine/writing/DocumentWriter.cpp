#include "DocumentWriter.h"

#include "DamageCheck.h"
#include "DocumentComparison.h"
#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/files/OutputFile.h"
#include "engine/pages/PageTree.h"
#include "engine/update/IncrementalUpdate.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/Pl_String.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <exception>
#include <string>
#include <string_view>

namespace engine {

namespace {

// QPDFWriter writes a few bytes at a time, so they are collected. It finishes its pipelines in destructors,
// which nothing thrown may leave: the first failure is kept, and what is written after it is dropped.
class FilePipeline : public Pipeline
{
public:
    explicit FilePipeline(OutputFile& file) : Pipeline("file", nullptr), m_file(file)
    {
        m_waiting.reserve(largest);
    }

    void write(const unsigned char* data, std::size_t size) override
    {
        std::string_view bytes(reinterpret_cast<const char*>(data), size);
        while (!bytes.empty()) {
            const std::string_view fitting = bytes.substr(0, largest - m_waiting.size());
            m_waiting.append(fitting);
            bytes.remove_prefix(fitting.size());
            if (m_waiting.size() == largest)
                finish();
        }
    }

    void finish() override
    {
        try {
            if (!m_failure)
                m_file.write(m_waiting);
        } catch (...) {
            m_failure = std::current_exception();
        }
        m_waiting.clear();
    }

    /// Throws the failure, if there was any.
    void requireWritten() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    static constexpr std::size_t largest = 1 << 18;

    OutputFile& m_file;
    std::string m_waiting;
    std::exception_ptr m_failure;
};

bool hasObjectStreams(QPDF& pdf)
{
    const auto table = pdf.getXRefTable();
    return std::any_of(table.begin(), table.end(),
                       [](const auto& entry) { return entry.second.getType() == 2; });
}

// QPDFWriter takes some entries over as they are, though libqpdf itself did without them in reading.
void completeTrailer(QPDF& pdf)
{
    QPDFObjectHandle trailer = pdf.getTrailer();
    if (!trailer.getKey("/Root").isIndirect())
        trailer.replaceKey("/Root", pdf.makeIndirectObject(pdf.getRoot()));
    if (!trailer.getKey("/Size").isInteger())
        trailer.replaceKey("/Size", QPDFObjectHandle::newInteger(1));
    if (pdf.isEncrypted()) {
        const auto bits = static_cast<long long>(pdf.getEncryptionKey().size()) * 8;
        trailer.getKey("/Encrypt").replaceKey("/Length", QPDFObjectHandle::newInteger(bits));
    }
}

/// Readers that take the number of pages from the root's count open nothing where it cannot be right.
void completePageCount(Document& document)
{
    QPDFObjectHandle root = document.key(document.catalog(), "/Pages");
    QPDFObjectHandle count = document.key(root, "/Count");
    const auto most = static_cast<long long>(document.pdf().getObjectCount());
    const bool possible = count.isInteger() && count.getIntValue() >= 0 && count.getIntValue() <= most;
    if (root.isDictionary() && !possible)
        root.replaceKey("/Count", QPDFObjectHandle::newInteger(PageTree(document).pageCount()));
}

void writeInto(Document& document, Pipeline& output)
{
    document.requireUnchanged();
    requireRewritable(document);
    completeTrailer(document.pdf());
    completePageCount(document);
    QPDFWriter writer(document.pdf());
    writer.setOutputPipeline(&output);
    writer.setDecodeLevel(qpdf_dl_none);
    writer.setPreserveUnreferencedObjects(true);
    // Without this, object streams that were compressed would be written plain.
    writer.setCompressStreams(hasObjectStreams(document.pdf()));
    writer.write();
    document.requireAllRead();
    document.requireUnchanged();
}

/// The document's own cross-reference where it is sound, else the one that a search brings.
CrossReference crossReferenceFor(Document& document)
{
    try {
        if (!document.crossReferenceRebuilt())
            return document.crossReference();
    } catch (const EngineError& error) {
        if (error.code() != ErrorCode::CannotAppend)
            throw;
    }
    return foundCrossReference(document);
}

void requireSameContent(Document& document, std::shared_ptr<ByteSource> written)
{
    Document again(std::move(written), document.fileName(), document.password());
    requireSameContent(document, again);
}

} // namespace

std::string updateOf(Document& document, std::optional<std::uint64_t> begin)
{
    if (!document.isChanged())
        throw EngineError(ErrorCode::NothingChanged);
    const CrossReference crossReference = crossReferenceFor(document);
    requireChangesWhole(document);
    const IncrementalUpdate update(document.pdf(), crossReference, *document.source(),
                                   document.changedObjects(), document.changedTrailer(), begin);
    document.requireAllRead();
    if (document.crossReferenceRebuilt() && crossReference.unlistedObjects().empty())
        throw EngineError(ErrorCode::CannotAppend, "the cross-reference was rebuilt");
    return update.bytes();
}

void appendUpdate(Document& document, const std::string& path)
{
    const std::string update = updateOf(document);
    OutputFile file(path);
    file.copy(*document.source());
    file.write(update);
    document.requireUnchanged();
    file.commit();
}

void writeWhole(Document& document, const std::string& path)
{
    OutputFile file(path);
    FilePipeline pipeline(file);
    writeInto(document, pipeline);
    pipeline.requireWritten();
    requireSameContent(document, ByteSource::openFile(file.writtenPath()));
    file.commit();
}

std::string wholeToString(Document& document)
{
    std::string bytes;
    Pl_String pipeline("memory", nullptr, bytes);
    writeInto(document, pipeline);
    requireSameContent(document, ByteSource::fromBytes(bytes));
    return bytes;
}

} // namespace engine
