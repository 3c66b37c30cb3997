#include "Bookmarks.h"

#include "host/terminal/TerminalText.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewNumbers.h"

#include <QJsonArray>

#include <stdexcept>

namespace host {

namespace {

const int deepest = 64;
const int longestTitle = 200;
const std::size_t indentation = 2;

const std::size_t mostBytes = 400 << 10;
const std::size_t bytesBesideTitle = 60;
const std::size_t bytesOfEscape = 6;

std::size_t bytesInJson(const QString& title)
{
    std::size_t bytes = bytesBesideTitle;
    for (const QChar unit : title)
        bytes += unit >= ' ' && unit <= '~' && unit != '"' && unit != '\\' ? 1 : bytesOfEscape;
    return bytes;
}

} // namespace

/// Goes through the bookmarks in the order in which they are shown.
class Bookmarks::Walk
{
public:
    Walk(TelvarPDFLibraryCPDylibCPP1311& library, int count) : m_library(library), m_count(count) {}

    void go()
    {
        std::vector<int> waiting{followed(m_library.GetFirstOutline())}; // one for each level
        while (!waiting.empty() && !m_isFull) {
            const int id = waiting.back();
            if (id == 0) {
                waiting.pop_back();
                continue;
            }
            take(id, static_cast<int>(waiting.size()));
            waiting.back() = followed(m_library.GetNextOutline(id));
            const int child = followed(m_library.GetFirstChildOutline(id));
            m_isTooDeep = m_isTooDeep || (child != 0 && waiting.size() == deepest);
            if (child != 0 && waiting.size() < deepest)
                waiting.push_back(child);
        }
    }

    std::string note() const
    {
        std::string text;
        const auto add = [&](bool applies, const std::string& what) {
            text += applies ? (text.empty() ? "" : "; ") + what : "";
        };
        add(m_isFull, "only the first " + std::to_string(entries.size()) + " bookmarks are told");
        add(m_isTooDeep, "bookmarks below level " + std::to_string(deepest) + " are left out");
        add(m_isCircular, "its bookmarks lead in a circle; each is told once");
        return text;
    }

    std::vector<Entry> entries;

private:
    void take(int id, int level)
    {
        m_isFull = static_cast<int>(entries.size()) == m_count || m_bytes > mostBytes;
        if (m_isFull)
            return;
        const auto read = [this](auto value) {
            requireRead();
            return value;
        };
        const QString title = QString::fromStdWString(read(m_library.OutlineTitle(id))).left(longestTitle);
        const int page = read(m_library.GetOutlinePage(id));
        entries.push_back(
            {level, title, page, (read(m_library.GetOutlineStyle(id)) & pdflibrary::OpenOutline) != 0});
        m_bytes += bytesInJson(title);
    }

    int followed(int id)
    {
        const bool isCircle = m_library.LastErrorCode() == static_cast<int>(engine::ErrorCode::TooComplex);
        m_isCircular = m_isCircular || isCircle;
        if (!isCircle)
            requireRead();
        return id;
    }

    void requireRead()
    {
        if (const int code = m_library.LastErrorCode(); code != 0)
            throw std::runtime_error("its bookmarks cannot be read: " + std::string(engine::errorText(code)));
    }

    TelvarPDFLibraryCPDylibCPP1311& m_library;
    int m_count;
    std::size_t m_bytes = 0;
    bool m_isFull = false;
    bool m_isTooDeep = false;
    bool m_isCircular = false;
};

Bookmarks Bookmarks::read(TelvarPDFLibraryCPDylibCPP1311& library, int count)
{
    Walk walk(library, count);
    walk.go();
    Bookmarks bookmarks;
    bookmarks.m_note = walk.note();
    bookmarks.m_entries = std::move(walk.entries);
    return bookmarks;
}

std::string Bookmarks::inWords() const
{
    std::string text;
    for (const Entry& entry : m_entries)
        text += std::string(static_cast<std::size_t>(entry.level + 1) * indentation, ' ') +
                forTerminal(entry.title.toStdString()) +
                (entry.page > 0 ? " (page " + std::to_string(entry.page) + ")" : "") + "\n";
    return text;
}

void Bookmarks::addTo(QJsonObject& object) const
{
    QJsonArray entries;
    for (const Entry& entry : m_entries)
        entries.append(QJsonObject{{"level", entry.level},
                                   {"title", entry.title},
                                   {"page", entry.page > 0 ? QJsonValue(entry.page) : QJsonValue()},
                                   {"open", entry.isOpen}});
    object.insert("outline", entries);
    object.insert("outlineNote", m_note.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(m_note)));
}

} // namespace host
