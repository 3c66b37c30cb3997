#include "ViewDifference.h"

#include "ViewValues.h"

namespace host::viewdifference {

namespace {

QJsonObject wordsOf(const std::vector<ViewDifference>& differences, std::string ViewDifference::*side)
{
    QJsonObject object;
    for (const ViewDifference& each : differences)
        object.insert(viewentries::describe(each.entry).option, QString::fromStdString(each.*side));
    return object;
}

} // namespace

std::string wordOf(ViewEntry entry, const ViewValue& value)
{
    return std::holds_alternative<Unset>(value) ? "unset" : viewvalues::wordOf(entry, value);
}

std::string inWords(const std::vector<ViewDifference>& differences)
{
    std::string text;
    for (const ViewDifference& each : differences)
        text += (text.empty() ? "" : "; ") + viewentries::label(each.entry) + ": " + each.before + " -> " +
                each.after;
    return text;
}

QJsonObject before(const std::vector<ViewDifference>& differences)
{
    return wordsOf(differences, &ViewDifference::before);
}

QJsonObject after(const std::vector<ViewDifference>& differences)
{
    return wordsOf(differences, &ViewDifference::after);
}

} // namespace host::viewdifference
