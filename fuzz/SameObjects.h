#pragma once

#include "Oracle.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace fuzz {

/// libqpdf's reading of a document, null where it cannot.
inline std::shared_ptr<QPDF> readByLibqpdf(const std::string& bytes)
{
    for (const char* password : {"secret", ""}) {
        std::shared_ptr<QPDF> pdf = QPDF::create();
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
    auto entries = dictionary.getDictAsMap();
    for (auto& [key, value] : entries)
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

/// Whether pages stand in the page tree itself: one that a destination leads to becomes an object then.
inline bool hasDirectKids(QPDFObjectHandle object)
{
    QPDFObjectHandle kids = object.isDictionary() ? object.getKey("/Kids") : QPDFObjectHandle::newNull();
    const auto items = kids.isArray() ? kids.getArrayAsVector() : std::vector<QPDFObjectHandle>();
    return std::any_of(items.begin(), items.end(), [](const auto& kid) { return !kid.isIndirect(); });
}

/// Whether streams have no end where they say. Readers search for it then, and may find one in
/// what is appended.
inline bool hasUnendedStreams(const std::string& bytes)
{
    const std::shared_ptr<QPDF> pdf = readByLibqpdf(bytes);
    if (pdf == nullptr)
        return false;
    for (const auto& [id, entry] : pdf->getXRefTable())
        pdf->getObject(id).isNull();
    const auto warnings = pdf->getWarnings();
    return std::any_of(warnings.begin(), warnings.end(), [](const QPDFExc& warning) {
        return warning.getMessageDetail().find("stream length") != std::string::npos;
    });
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
        std::set<std::string> without;
        if (id == root.getObjGen())
            without = {"/PageMode", "/PageLayout", "/ViewerPreferences", "/OpenAction", "/Lang", "/Metadata"};
        if (hasDirectKids(before->getObject(id)))
            without.insert("/Kids");
        if (changed.count(id) == 0)
            requireSame(valueOf(before->getObject(id), without), valueOf(after->getObject(id), without),
                        "object " + id.unparse(' '));
    }
}

} // namespace fuzz
