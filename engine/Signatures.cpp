#include "engine/Signatures.h"

#include "engine/Document.h"

#include <set>
#include <vector>

namespace engine {

namespace {

class SignatureCounter
{
public:
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
            if (!field.isDictionary() || (field.isIndirect() && !m_fields.insert(field.getObjGen()).second))
                continue;
            QPDFObjectHandle type = field.getKey("/FT"); // inherited by the kids
            if (type.isName())
                isSignature = type.isNameAndEquals("/Sig");
            if (isSignature)
                add(field.getKey("/V"));
            push(waiting, field.getKey("/Kids"), isSignature);
        }
    }

    int count() const { return m_count; }

private:
    struct Field
    {
        QPDFObjectHandle dictionary;
        bool isSignature;
    };

    static void push(std::vector<Field>& waiting, QPDFObjectHandle kids, bool isSignature)
    {
        for (int kid = kids.isArray() ? kids.getArrayNItems() : 0; kid-- > 0;)
            waiting.push_back({kids.getArrayItem(kid), isSignature});
    }

    int m_count = 0;
    std::set<QPDFObjGen> m_counted;
    std::set<QPDFObjGen> m_fields;
};

} // namespace

int countSignatures(Document& document)
{
    SignatureCounter counter;
    QPDFObjectHandle form = document.catalog().getKey("/AcroForm");
    if (form.isDictionary())
        counter.addFields(form.getKey("/Fields"));
    QPDFObjectHandle permissions = document.catalog().getKey("/Perms");
    if (permissions.isDictionary())
        for (const char* kind : {"/DocMDP", "/UR", "/UR3"})
            counter.add(permissions.getKey(kind));
    return counter.count();
}

} // namespace engine
