#include "Signatures.h"

#include "Document.h"

#include <set>
#include <utility>
#include <vector>

namespace engine {

namespace {

class SignatureCounter
{
public:
    explicit SignatureCounter(Document& document) : m_document(document) {}

    void add(QPDFObjectHandle value)
    {
        if (value.isDictionary() && (!value.isIndirect() || m_counted.insert(value.getObjGen()).second))
            ++m_count;
    }

    /// The fields of a form, from the array that lists the topmost ones.
    void addFields(const QPDFObjectHandle& fields)
    {
        std::vector<Field> waiting;
        push(waiting, fields, false);
        while (!waiting.empty()) {
            auto [field, isSignature] = waiting.back();
            waiting.pop_back();
            if (!field.isDictionary())
                continue;
            QPDFObjectHandle type = m_document.key(field, "/FT"); // inherited by the kids
            if (type.isName())
                isSignature = type.isNameAndEquals("/Sig");
            QPDFObjectHandle value = m_document.key(field, "/V");
            if (isSignature || isSigning(value))
                add(value);
            push(waiting, m_document.key(field, "/Kids"), isSignature);
        }
    }

    int count() const { return m_count; }

private:
    struct Field
    {
        QPDFObjectHandle dictionary;
        bool isSignature;
    };

    /// Whatever the field's type, what covers bytes of the file breaks when they change.
    bool isSigning(const QPDFObjectHandle& value) { return !m_document.key(value, "/ByteRange").isNull(); }

    /// Fields and arrays that are shared are looked at once for each type that they inherit.
    bool isNew(const QPDFObjectHandle& object, bool isSignature)
    {
        return !object.isIndirect() || m_seen.insert({object.getObjGen(), isSignature}).second;
    }

    void push(std::vector<Field>& waiting, QPDFObjectHandle kids, bool isSignature)
    {
        const bool lists = kids.isArray() && isNew(kids, isSignature);
        for (int index = lists ? kids.getArrayNItems() : 0; index-- > 0;) {
            const QPDFObjectHandle kid = m_document.item(kids, index);
            if (isNew(kid, isSignature))
                waiting.push_back({kid, isSignature});
        }
    }

    Document& m_document;
    int m_count = 0;
    std::set<QPDFObjGen> m_counted;
    std::set<std::pair<QPDFObjGen, bool>> m_seen;
};

} // namespace

int countSignatures(Document& document)
{
    SignatureCounter counter(document);
    QPDFObjectHandle form = document.key(document.catalog(), "/AcroForm");
    if (form.isDictionary())
        counter.addFields(document.key(form, "/Fields"));
    QPDFObjectHandle permissions = document.key(document.catalog(), "/Perms");
    if (permissions.isDictionary())
        for (const char* kind : {"/DocMDP", "/UR", "/UR3"})
            counter.add(document.key(permissions, kind));
    return counter.count();
}

bool isCertified(Document& document)
{
    const QPDFObjectHandle permissions = document.key(document.catalog(), "/Perms");
    return document.key(permissions, "/DocMDP").isDictionary();
}

} // namespace engine
