#pragma once

#include <map>
#include <string>

/// Writes small documents from the text of their objects, with a right cross-reference table, so that a test
/// shows exactly what it is about. Objects may be set in any order; numbers that are left out become free
/// entries.
class PdfBuilder
{
public:
    /// \param body everything between "n 0 obj" and "endobj".
    PdfBuilder& object(int number, const std::string& body)
    {
        m_objects[number] = body;
        return *this;
    }

    /// \param dictionary entries besides /Length.
    PdfBuilder& stream(int number, const std::string& dictionary, const std::string& data)
    {
        return object(number, "<< " + dictionary + " /Length " + std::to_string(data.size()) +
                                  " >>\nstream\n" + data + "\nendstream");
    }

    /// The catalog, object 1, with /Pages 2 0 R and these further entries.
    PdfBuilder& catalog(const std::string& entries)
    {
        return object(1, "<< /Type /Catalog /Pages 2 0 R " + entries + " >>");
    }

    /// A flat page tree: node 2 and pages of 612 by 792 points as objects `first`, `first` + 1, ...
    PdfBuilder& pages(int count, int first = 3, const std::string& entries = "")
    {
        std::string kids;
        for (int page = first; page < first + count; ++page) {
            object(page, "<< /Type /Page /Parent 2 0 R " + entries + " >>");
            kids += std::to_string(page) + " 0 R ";
        }
        return object(2, "<< /Type /Pages /Count " + std::to_string(count) +
                             " /MediaBox [0 0 612 792] /Kids [ " + kids + "] >>");
    }

    /// Further trailer entries, such as "/Info 9 0 R"; /Root is 1 0 R, /Size is added.
    PdfBuilder& trailer(const std::string& entries)
    {
        m_trailer = entries;
        return *this;
    }

    PdfBuilder& version(const std::string& version)
    {
        m_version = version;
        return *this;
    }

    /// The whole document.
    std::string bytes() const
    {
        std::string out = "%PDF-" + m_version + "\n%\xe2\xe3\xcf\xd3\n";
        std::map<int, std::size_t> offsets;
        for (const auto& [number, body] : m_objects) {
            offsets[number] = out.size();
            out += std::to_string(number) + " 0 obj\n" + body + "\nendobj\n";
        }
        const std::size_t table = out.size();
        const int size = m_objects.empty() ? 1 : m_objects.rbegin()->first + 1;
        out += "xref\n0 " + std::to_string(size) + "\n0000000000 65535 f \n";
        for (int number = 1; number < size; ++number)
            out += entry(offsets.count(number) != 0 ? offsets[number] : 0);
        out += "trailer\n<< /Size " + std::to_string(size) + " /Root 1 0 R " + m_trailer + " >>\n";
        return out + "startxref\n" + std::to_string(table) + "\n%%EOF\n";
    }

    /// A document of `count` pages with these further catalog entries.
    static std::string simple(const std::string& catalogEntries = "", int count = 3)
    {
        return PdfBuilder().catalog(catalogEntries).pages(count).bytes();
    }

private:
    static std::string entry(std::size_t offset)
    {
        const std::string digits = std::to_string(offset);
        return std::string(10 - digits.size(), '0') + digits + (offset == 0 ? " 65535 f \n" : " 00000 n \n");
    }

    std::map<int, std::string> m_objects;
    std::string m_trailer;
    std::string m_version = "1.7";
};
