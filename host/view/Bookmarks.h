#pragma once

#include <QJsonObject>

#include <string>
#include <vector>

class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// The bookmarks of a document, as a list in which each has its level.
class Bookmarks
{
public:
    /// What can be told of one document.
    static constexpr int most = 5000;

    /// Reads those of the selected document: no more than `count`, none deeper than 64 levels, and fewer where
    /// their titles would take more than 400 KiB in JSON. Throws std::runtime_error when the library cannot
    /// tell.
    static Bookmarks read(TelvarPDFLibraryCPDylibCPP1311& library, int count);

    /// A line each, indented by their levels, with the page; safe to print.
    std::string inWords() const;
    /// Puts `outline` into an object: `level` from 1, `title` (cut off at 200 characters), `page` or null,
    /// and `open` of each; and `outlineNote`, note() or null.
    void addTo(QJsonObject& object) const;
    /// What is missing in the list; empty when it has all.
    const std::string& note() const { return m_note; }

private:
    struct Entry
    {
        int level;
        QString title;
        int page;
        bool isOpen; ///< What is below is shown at first.
    };

    class Walk;

    std::vector<Entry> m_entries;
    std::string m_note;
};

} // namespace host
