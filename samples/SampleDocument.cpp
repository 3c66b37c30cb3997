#include "SampleDocument.h"

#include <qpdf/QPDFPageDocumentHelper.hh>

SampleDocument::SampleDocument(const std::string& title, double width, double height)
    : m_width(width), m_height(height)
{
    m_pdf.emptyPDF();
    m_font = m_pdf.makeIndirectObject(
        QPDFObjectHandle::parse("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"));
    QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
    information.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(title));
    m_pdf.getTrailer().replaceKey("/Info", m_pdf.makeIndirectObject(information));
}

void SampleDocument::addPage(const std::string& heading, int lines)
{
    QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page /Resources << /Font << >> >> >>");
    page.replaceKey("/MediaBox",
                    QPDFObjectHandle::newArray(
                        {QPDFObjectHandle::newInteger(0), QPDFObjectHandle::newInteger(0),
                         QPDFObjectHandle::newReal(m_width, 2), QPDFObjectHandle::newReal(m_height, 2)}));
    page.getKey("/Resources").getKey("/Font").replaceKey("/F", m_font);
    page.replaceKey("/Contents", m_pdf.newStream(contentOf(heading, lines)));
    QPDFPageDocumentHelper(m_pdf).addPage(m_pdf.makeIndirectObject(page), false);
    m_headings.push_back(heading);
}

std::string SampleDocument::contentOf(const std::string& heading, int lines) const
{
    const double left = m_width / 9;
    std::string content = "BT /F 24 Tf " + std::to_string(left) + " " + std::to_string(m_height - 90) +
                          " Td (" + heading + ") Tj /F 11 Tf 0 -40 Td 16 TL\n";
    for (int line = 1; line <= lines; ++line)
        content += "(Line " + std::to_string(line) + " of the text about " + heading + ".) Tj T*\n";
    return content + "ET\n";
}

void SampleDocument::setCatalogEntry(const std::string& key, const std::string& value)
{
    m_pdf.getRoot().replaceKey(key, QPDFObjectHandle::parse(value));
}

void SampleDocument::addOutline()
{
    const std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(m_pdf).getAllPages();
    QPDFObjectHandle outline = m_pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
    QPDFObjectHandle before;
    for (std::size_t index = 0; index < pages.size(); ++index) {
        QPDFObjectHandle entry = m_pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        entry.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(m_headings[index]));
        entry.replaceKey("/Parent", outline);
        entry.replaceKey("/Dest", QPDFObjectHandle::newArray(
                                      {pages[index].getObjectHandle(), QPDFObjectHandle::newName("/Fit")}));
        if (before.isInitialized()) {
            before.replaceKey("/Next", entry);
            entry.replaceKey("/Prev", before);
        } else {
            outline.replaceKey("/First", entry);
        }
        before = entry;
    }
    outline.replaceKey("/Last", before);
    outline.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
    m_pdf.getRoot().replaceKey("/Outlines", outline);
}

void SampleDocument::write(const std::string& file, void (*prepare)(QPDFWriter&))
{
    addOutline();
    QPDFWriter writer(m_pdf, file.c_str());
    prepare(writer);
    writer.write();
}
