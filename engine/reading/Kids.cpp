#include "Kids.h"

#include <utility>

namespace engine {

Kids::Kids(QPDFObjectHandle array) : m_array(array), m_size(array.isArray() ? array.getArrayNItems() : 0) {}

Kids::Kids(std::shared_ptr<const KidList> list) : m_list(std::move(list)), m_size(m_list->size()) {}

QPDFObjGen Kids::id(int kid) const
{
    return m_list ? m_list->id(kid) : QPDFObjectHandle(m_array).getArrayItem(kid).getObjGen();
}

int Kids::placeOf(QPDFObjGen id) const
{
    if (m_list)
        return m_list->placeOf(id);
    for (int kid = 0; kid < m_size; ++kid)
        if (this->id(kid) == id)
            return kid;
    return -1;
}

QPDFObjectHandle Kids::handle(QPDF& pdf, int kid) const
{
    return m_list ? pdf.getObject(id(kid)) : QPDFObjectHandle(m_array).getArrayItem(kid);
}

} // namespace engine
