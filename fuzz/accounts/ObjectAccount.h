#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <stdexcept>
#include <string>

/// What comes of reading an object: kind, form, and a line for each complaint.
template <class Parse>
std::string objectAccount(Parse parse)
{
    QPDF pdf;
    pdf.emptyPDF();
    pdf.setSuppressWarnings(true);
    std::string text;
    try {
        QPDFObjectHandle object = parse(pdf);
        text = std::string(object.getTypeName()) + ' ' + object.unparse();
    } catch (const std::runtime_error& error) {
        text = error.what();
    }
    for (const QPDFExc& warning : pdf.getWarnings())
        text += std::string("\n") + warning.what();
    return text;
}
