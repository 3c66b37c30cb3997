#pragma once

#include "Oracle.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

#include <memory>
#include <set>
#include <string>

namespace fuzz {

/// libqpdf's reading of a document, null where it cannot.
inline std::shared_ptr<QPDF> readByLibqpdf(const std::string& bytes)
{
    for (const char* password : {"secret", ""}) {
        const std::shared_ptr<QPDF> pdf = QPDF::create();
        pdf->setSuppressWarnings(true);
        try {
            pdf->processMemoryFile("", bytes.data(), bytes.size(), password);
            return pdf;
        } catch (const std::exception&) {
        }
    }
    return nullptr;
}

/// An object's value as text, a stream's data included.
inline std::string valueOf(QPDFObjectHandle object, const std::set<std::string>& without = {})
{
    std::string text = object.isStream() ? "stream " : "";
    QPDFObjectHandle dictionary = object.isStream() ? object.getDict() : object;
    if (!dictionary.isDictionary())
        return dictionary.unparseResolved();
    for (const auto& [key, value] : dictionary.getDictAsMap())
        if (without.count(key) == 0)
            text += key + " " + value.unparse() + "\n";
    try {
        const auto data = object.isStream() ? object.getRawStreamData() : nullptr;
        if (data)
            text += std::string(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
    } catch (const std::exception&) {
        text += "without data";
    }
    return text;
}

/// Ends the process unless all objects are the same that a change of how a document opens does not touch.
inline void requireSameObjects(const std::string& source, const std::string& result)
{
    const std::shared_ptr<QPDF> before = readByLibqpdf(source);
    if (before == nullptr)
        return;
    const std::shared_ptr<QPDF> after = readByLibqpdf(result);
    require(after != nullptr, "libqpdf cannot read the result");
    QPDFObjectHandle root = before->getRoot();
    const std::set<QPDFObjGen> changed{root.getKey("/ViewerPreferences").getObjGen(),
                                       root.getKey("/Metadata").getObjGen(),
                                       before->getTrailer().getKey("/Info").getObjGen()};
    for (const auto& [id, entry] : before->getXRefTable()) {
        const bool isRoot = id == root.getObjGen();
        const std::set<std::string> asked{"/PageMode",   "/PageLayout", "/ViewerPreferences",
                                          "/OpenAction", "/Lang",       "/Metadata"};
        const std::set<std::string> without = isRoot ? asked : std::set<std::string>();
        if (changed.count(id) == 0)
            requireSame(valueOf(before->getObject(id), without), valueOf(after->getObject(id), without),
                        "object " + id.unparse(' '));
    }
}

} // namespace fuzz
