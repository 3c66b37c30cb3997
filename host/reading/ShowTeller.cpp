#include "ShowTeller.h"

#include "host/plan/StreamFiles.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/TerminalText.h"
#include "host/view/Bookmarks.h"
#include "host/view/OpeningView.h"

namespace host {

Reading ShowTeller::tell(const std::string& file)
{
    const OpeningView view = OpeningView::read(m_library);
    if (const auto* table = std::get_if<ViewTable>(&m_form))
        return {Reading::Good, table->row(shownName(file), view)};
    const Bookmarks bookmarks = m_bookmarks > 0 ? Bookmarks::read(m_library, m_bookmarks) : Bookmarks();
    if (std::holds_alternative<Words>(m_form))
        return {Reading::Good, forTerminal(shownName(file)) + "\n" + view.inWords() + bookmarks.inWords(),
                bookmarks.note()};
    QJsonObject object = view.toJson();
    if (m_bookmarks > 0)
        bookmarks.addTo(object);
    insertName(object, "file", file);
    return {Reading::Good, jsonLine(object), bookmarks.note()};
}

} // namespace host
