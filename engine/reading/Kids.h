#pragma once

#include "KidList.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <memory>

namespace engine {

/// What a node of the page tree lists.
class Kids
{
public:
    /// \param array anything; what is no array has no kids.
    explicit Kids(QPDFObjectHandle array);
    explicit Kids(std::shared_ptr<const KidList> list);

    /// False for the kids of something that is not a node.
    explicit operator bool() const { return m_list != nullptr || QPDFObjectHandle(m_array).isArray(); }
    int size() const { return m_size; }
    /// The object that a reference leads to; the null object's number for a kid that stands here directly.
    QPDFObjGen id(int kid) const;
    /// The first place of an object, -1 when it is not here.
    int placeOf(QPDFObjGen id) const;
    /// The kid itself, which may have to be fetched.
    QPDFObjectHandle handle(QPDF& pdf, int kid) const;

private:
    std::shared_ptr<const KidList> m_list; // null when m_array has the kids
    QPDFObjectHandle m_array;
    int m_size;
};

} // namespace engine
