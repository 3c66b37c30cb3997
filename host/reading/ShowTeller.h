#pragma once

#include "DocumentReader.h"
#include "ViewTable.h"

#include <variant>

namespace host {

/// Tells how documents open.
class ShowTeller : public DocumentTeller
{
public:
    struct Words
    {};
    struct Json
    {};
    using Form = std::variant<Words, Json, ViewTable>;

    /// The library must outlive the object.
    ShowTeller(TelvarPDFLibraryCPDylibCPP1311& library, Form form)
        : m_library(library), m_form(std::move(form))
    {}

    Reading tell(const std::string& file) override;

private:
    TelvarPDFLibraryCPDylibCPP1311& m_library;
    Form m_form;
};

} // namespace host
