#include "CheckTeller.h"

#include "host/document/ViewChanger.h"
#include "host/document/ViewSnapshot.h"
#include "host/failures/Joined.h"
#include "host/plan/StreamFiles.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/TerminalText.h"

#include "pdflibrary/ErrorCodes.h"

namespace host {

namespace {

/// A difference that no entry of the view has a value for.
const std::string otherPlace = "open page: at another place on the page";

std::string inJson(const std::string& file, const char* status, const Failure& reason, QJsonObject object)
{
    object.insert("status", status);
    object.insert("reasonCode", textOrNull(nameOf(reason.code)));
    object.insert("reason", textOrNull(reason.text));
    insertName(object, "file", file);
    return jsonLine(object);
}

} // namespace

CheckTeller::CheckTeller(TelvarPDFLibraryCPDylibCPP1311& library, const Question& question)
    : m_library(library), m_question(question), m_sequence(question.action, library, question.entries)
{}

Reading CheckTeller::tell(const std::string& file)
{
    const bool asksForTitle = m_question.change[ViewEntry::Title].has_value();
    const ViewSnapshot before(m_library, asksForTitle);
    const Trial trial = tryOut(file);
    const ViewSnapshot after(m_library, asksForTitle);
    const bool good = !trial.reason && m_library.SecurityInfo(engine::UnsavedChanges) == 0;
    if (m_question.json) {
        QJsonObject object{{"before", before.unlike(after)}, {"after", after.unlike(before)}};
        if (!trial.note.empty())
            object.insert("note", QString::fromStdString(trial.note));
        return {good ? Reading::Good : Reading::Differs,
                inJson(file, good ? "as asked" : "differs", trial.reason, object), trial.note, trial.reason};
    }
    if (good)
        return {Reading::Good, {}, trial.note};
    std::string text = before.changeTo(after);
    text = joined(trial.reason.text, text);
    if (text.empty())
        text = trial.details.empty() ? otherPlace : trial.details;
    return {Reading::Differs, forTerminal(shownName(file)) + ": " + forTerminal(text) + "\n", trial.note,
            trial.reason};
}

CheckTeller::Trial CheckTeller::tryOut(const std::string& file)
{
    return m_question.entries.empty() ? tryChange(file) : Trial{m_sequence.apply(), {}, {}};
}

CheckTeller::Trial CheckTeller::tryChange(const std::string& file)
{
    ViewChanger changer(m_library, m_question.change);
    Trial trial;
    trial.reason = changer.apply(file);
    for (const ViewDifference& each : changer.differences())
        trial.details =
            joined(trial.details, viewentries::label(each.entry) + ": " + each.before + " -> " + each.after);
    if (!trial.reason)
        trial.reason = changer.leftOut();
    for (const std::string& note : changer.notes())
        trial.note = joined(trial.note, note);
    return trial;
}

std::string CheckTeller::failureInJson(const std::string& file, const Failure& reason)
{
    return inJson(file, "failed", reason, {{"before", QJsonObject()}, {"after", QJsonObject()}});
}

} // namespace host
