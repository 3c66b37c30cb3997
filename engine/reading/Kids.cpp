#include "Kids.h"

#include <utility>

namespace engine {

Kids::Kids(QPDFObjectHandle array) : m_array(array), m_size(array.isArray() ? array.getArrayNItems() : 0) {}

Kids::Kids(std::shared_ptr<const KidReferences> references)
    : m_references(std::move(references)), m_size(static_cast<int>(m_references->size()))
{}

QPDFObjGen Kids::id(int kid) const
{
    return m_references ? (*m_references)[static_cast<std::size_t>(kid)]
                        : QPDFObjectHandle(m_array).getArrayItem(kid).getObjGen();
}

QPDFObjectHandle Kids::handle(QPDF& pdf, int kid) const
{
    return m_references ? pdf.getObject(id(kid)) : QPDFObjectHandle(m_array).getArrayItem(kid);
}

} // namespace engine
