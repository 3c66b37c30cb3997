#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <memory>
#include <vector>

namespace engine {

using KidReferences = std::vector<QPDFObjGen>;

/// What a node of the page tree lists.
class Kids
{
public:
    /// \param array anything; what is no array has no kids.
    explicit Kids(QPDFObjectHandle array);
    explicit Kids(std::shared_ptr<const KidReferences> references);

    /// False for the kids of something that is not a node.
    explicit operator bool() const { return m_references != nullptr || QPDFObjectHandle(m_array).isArray(); }
    int size() const { return m_size; }
    /// The object that a reference leads to; the null object's number for a kid that stands here directly.
    QPDFObjGen id(int kid) const;
    /// The kid itself, which may have to be fetched.
    QPDFObjectHandle handle(QPDF& pdf, int kid) const;

private:
    std::shared_ptr<const KidReferences> m_references; // null when m_array has the kids
    QPDFObjectHandle m_array;
    int m_size;
};

} // namespace engine
