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

    /// The library must outlive the object. \param bookmarks how many it tells at most, besides their number;
    /// rows of a table have no place for them.
    ShowTeller(TelvarPDFLibraryCPDylibCPP1311& library, Form form, int bookmarks)
        : m_library(library), m_form(std::move(form)), m_bookmarks(bookmarks)
    {}

    Reading tell(const std::string& file) override;

private:
    TelvarPDFLibraryCPDylibCPP1311& m_library;
    Form m_form;
    int m_bookmarks;
};

} // namespace host
