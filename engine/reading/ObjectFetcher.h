#pragma once

#include "Kids.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

class ByteSource;
class DirectReader;

/// A direct reader had to give up: thrown by whatever reads an object. Open the document whole, and try
/// again.
struct DirectReadingEnded
{};

/// A document that libqpdf knows as a skeleton, into which objects are put when they are asked for.
class ObjectFetcher
{
public:
    /// \returns null for a document that has to be opened whole.
    static std::unique_ptr<ObjectFetcher> open(const std::shared_ptr<ByteSource>& source,
                                               const std::string& fileName);
    ~ObjectFetcher();
    ObjectFetcher(const ObjectFetcher&) = delete;
    ObjectFetcher& operator=(const ObjectFetcher&) = delete;

    const std::shared_ptr<QPDF>& pdf() const { return m_pdf; }
    const DirectReader& reader() const { return *m_reader; }

    /// Reads the object that a reference leads to, unless it was read before. Throws DirectReadingEnded.
    void fetch(QPDFObjectHandle object);
    /// The same for what may be a node of the page tree: its /Kids stay out of libqpdf and are what kidsOf()
    /// returns, null for other objects.
    void fetchNode(QPDFObjectHandle object);
    std::shared_ptr<const KidList> kidsOf(QPDFObjGen id) const;

    /// The text of an object that nobody has read yet, good until the next call of any function.
    std::optional<std::string_view> unread(QPDFObjGen id);

    /// Notes that an object is new, so that there is nothing to read.
    void noteNew(QPDFObjGen id) { m_fetched.insert(id); }

    /// What was read so far, in that order; objects can be in it more than once.
    const std::vector<QPDFObjGen>& lookedAt() const { return m_lookedAt; }

private:
    ObjectFetcher(std::unique_ptr<DirectReader> reader, std::string skeleton);

    bool isKnown(QPDFObjGen id) const { return m_fetched.contains(id) || m_kids.contains(id); }
    std::string_view textOf(QPDFObjGen id);
    void put(QPDFObjGen id, std::string_view text);

    std::unique_ptr<DirectReader> m_reader;
    std::string m_skeleton; // libqpdf reads from it
    std::shared_ptr<QPDF> m_pdf;
    std::set<QPDFObjGen> m_fetched;
    std::vector<QPDFObjGen> m_lookedAt;
    std::map<QPDFObjGen, std::shared_ptr<const KidList>> m_kids; // of nodes fetched without
};

} // namespace engine
