#include "CheckTeller.h"

#include "host/change/ViewChanger.h"
#include "host/change/ViewSnapshot.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/TerminalText.h"

namespace host {

namespace {

QJsonValue textOrNull(const std::string& text)
{
    return text.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(text));
}

} // namespace

CheckTeller::CheckTeller(TelvarPDFLibraryCPDylibCPP1311& library, const Question& question)
    : m_library(library), m_question(question), m_sequence(question.action, library, question.entries)
{}

Reading CheckTeller::tell(const std::string& file)
{
    const Found found = m_question.entries.empty() ? tryChange(file) : tryEntries();
    const bool good = found.reason.empty() && found.differences.empty();
    return {good ? Reading::Good : Reading::Differs, textOf(file, found), found.note};
}

CheckTeller::Found CheckTeller::tryChange(const std::string& file)
{
    ViewChanger changer(m_library, m_question.change);
    Found found;
    found.reason = changer.apply(file);
    found.differences = changer.differences();
    for (const std::string& note : changer.notes())
        found.note += (found.note.empty() ? "" : "; ") + note;
    return found;
}

CheckTeller::Found CheckTeller::tryEntries()
{
    const ViewSnapshot before(m_library);
    Found found;
    found.reason = m_sequence.apply();
    found.differences = before.differencesTo(ViewSnapshot(m_library));
    return found;
}

std::string CheckTeller::textOf(const std::string& file, const Found& found) const
{
    const bool good = found.reason.empty() && found.differences.empty();
    if (m_question.json) {
        QJsonObject object{{"status", good ? "as asked" : "differs"},
                           {"reason", textOrNull(found.reason)},
                           {"before", viewdifference::before(found.differences)},
                           {"after", viewdifference::after(found.differences)}};
        if (!found.note.empty())
            object.insert("note", QString::fromStdString(found.note));
        insertName(object, "file", file);
        return jsonLine(object);
    }
    if (good)
        return {};
    const std::string differences = viewdifference::inWords(found.differences);
    const std::string between = found.reason.empty() || differences.empty() ? "" : "; ";
    return forTerminal(file) + ": " + forTerminal(differences + between + found.reason) + "\n";
}

std::string CheckTeller::failureInJson(const std::string& file, const std::string& reason)
{
    QJsonObject object{{"status", "failed"},
                       {"reason", textOrNull(reason)},
                       {"before", QJsonObject()},
                       {"after", QJsonObject()}};
    insertName(object, "file", file);
    return jsonLine(object);
}

} // namespace host
