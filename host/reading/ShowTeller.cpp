#include "ShowTeller.h"

#include "host/plan/StreamFiles.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/TerminalText.h"
#include "host/view/OpeningView.h"

namespace host {

Reading ShowTeller::tell(const std::string& file)
{
    const OpeningView view = OpeningView::read(m_library);
    if (const auto* table = std::get_if<ViewTable>(&m_form))
        return {Reading::Good, table->row(shownName(file), view)};
    if (std::holds_alternative<Words>(m_form))
        return {Reading::Good, forTerminal(shownName(file)) + "\n" + view.inWords()};
    QJsonObject object = view.toJson();
    insertName(object, "file", file);
    return {Reading::Good, jsonLine(object)};
}

} // namespace host
