#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <set>
#include <string>

namespace engine {

/// What differs between a document and the bytes that it was read from: indirect objects, and entries of the
/// trailer.
class DocumentChanges
{
public:
    bool empty() const { return m_objects.empty() && m_trailer.empty(); }
    const std::set<QPDFObjGen>& objects() const { return m_objects; }
    /// Null for an entry that was removed.
    const std::map<std::string, QPDFObjectHandle>& trailer() const { return m_trailer; }

    void noteObject(QPDFObjGen id) { m_objects.insert(id); }
    void setTrailerKey(QPDF& pdf, const std::string& key, const QPDFObjectHandle& value);

    /// Makes the same changes to another reading of the document; handles lead into that one from now on.
    void moveTo(QPDF& to, QPDF& from);

private:
    std::set<QPDFObjGen> m_objects;
    std::map<std::string, QPDFObjectHandle> m_trailer;
};

} // namespace engine
