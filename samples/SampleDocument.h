#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <string>
#include <vector>

/// A small document with headings, lines of text and an outline.
class SampleDocument
{
public:
    /// \param width, \param height of the pages, in points.
    SampleDocument(const std::string& title, double width, double height);

    /// Adds a page whose heading also becomes an outline entry.
    void addPage(const std::string& heading, int lines);

    /// Sets an entry of the catalog, in PDF syntax.
    void setCatalogEntry(const std::string& key, const std::string& value);

    /// \param prepare sets up what is special about the file, such as encryption.
    void write(
        const std::string& file, void (*prepare)(QPDFWriter&) = [](QPDFWriter&) {});

private:
    std::string contentOf(const std::string& heading, int lines) const;
    void addOutline();

    QPDF m_pdf;
    QPDFObjectHandle m_font;
    double m_width;
    double m_height;
    std::vector<std::string> m_headings;
};
