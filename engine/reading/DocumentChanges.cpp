#include "DocumentChanges.h"

#include "engine/syntax/ObjectSerializer.h"

namespace engine {

namespace {

/// The same content in another reading of the document, with references to the same numbers.
QPDFObjectHandle copied(const QPDFObjectHandle& value, QPDF& to)
{
    return QPDFObjectHandle::parse(&to, ObjectSerializer().write(value));
}

} // namespace

void DocumentChanges::setTrailerKey(QPDF& pdf, const std::string& key, const QPDFObjectHandle& value)
{
    pdf.getTrailer().replaceKey(key, value);
    m_trailer[key] = value;
}

void DocumentChanges::moveTo(QPDF& to, QPDF& from)
{
    for (const QPDFObjGen& id : m_objects)
        to.replaceObject(id, copied(from.getObject(id), to));
    for (auto& [key, value] : m_trailer) {
        value = value.isIndirect() ? to.getObject(value.getObjGen()) : copied(value, to);
        to.getTrailer().replaceKey(key, value);
    }
}

} // namespace engine
