#include "DocumentWriter.h"

#include "Document.h"
#include "PageTree.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/files/OutputFile.h"
#include "engine/update/IncrementalUpdate.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/Pl_String.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>

namespace engine {

namespace {

// QPDFWriter writes a few bytes at a time.
class FilePipeline : public Pipeline
{
public:
    explicit FilePipeline(OutputFile& file) : Pipeline("file", nullptr), m_file(file) {}

    void write(const unsigned char* data, std::size_t size) override
    {
        m_waiting.append(reinterpret_cast<const char*>(data), size);
        if (m_waiting.size() >= 1 << 18)
            finish();
    }

    void finish() override
    {
        m_file.write(m_waiting);
        m_waiting.clear();
    }

private:
    OutputFile& m_file;
    std::string m_waiting;
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
    document.readWhole();
    completeTrailer(document.pdf());
    completePageCount(document);
    QPDFWriter writer(document.pdf());
    writer.setOutputPipeline(&output);
    writer.setDecodeLevel(qpdf_dl_none);
    // Without this, object streams that were compressed would be written plain.
    writer.setCompressStreams(hasObjectStreams(document.pdf()));
    writer.write();
    document.requireAllRead();
    document.requireUnchanged();
}

} // namespace

void appendUpdate(Document& document, const std::string& path)
{
    const std::shared_ptr<ByteSource>& source = document.source();
    if (!document.isChanged())
        throw EngineError(ErrorCode::NothingChanged);
    const IncrementalUpdate update(document.pdf(), document.crossReference(), *source,
                                   document.changedObjects(), document.changedTrailer());
    document.requireAllRead();
    if (document.crossReferenceRebuilt())
        throw EngineError(ErrorCode::CannotAppend, "the cross-reference was rebuilt");
    OutputFile file(path);
    file.copy(*source);
    file.write(update.bytes());
    document.requireUnchanged();
    file.commit();
}

void writeWhole(Document& document, const std::string& path)
{
    OutputFile file(path);
    FilePipeline pipeline(file);
    writeInto(document, pipeline);
    file.commit();
}

std::string wholeToString(Document& document)
{
    std::string bytes;
    Pl_String pipeline("memory", nullptr, bytes);
    writeInto(document, pipeline);
    return bytes;
}

} // namespace engine
