#include "Outcome.h"

namespace host::desktop {

namespace {

using Kind = Outcome::Kind;

struct Status
{
    const char* name;
    Kind checked;
    Kind done;
};

const Status statuses[] = {
    {"changed", Kind::WillChange, Kind::Changed},    {"differs", Kind::WillChange, Kind::Changed},
    {"unchanged", Kind::AsAsked, Kind::Unchanged},   {"as asked", Kind::AsAsked, Kind::Unchanged},
    {"failed", Kind::Cannot, Kind::Failed},          {"undone", Kind::Undone, Kind::Undone},
    {"undone already", Kind::Undone, Kind::Undone},  {"left alone", Kind::LeftAlone, Kind::LeftAlone},
    {"leftAlone", Kind::LeftAlone, Kind::LeftAlone}, {"undoneAlready", Kind::Undone, Kind::Undone},
};

} // namespace

Outcome Outcome::fromJson(const QJsonObject& object, bool isCheck)
{
    Outcome outcome;
    const QString status = object.value("status").toString();
    for (const Status& each : statuses)
        if (status == each.name)
            outcome.kind = isCheck ? each.checked : each.done;
    outcome.reasonCode = object.value("reasonCode").toString();
    outcome.reason = object.value("reason").toString();
    outcome.note = object.value("note").toString();
    outcome.before = ViewReading::fromJson(object.value("before").toObject());
    outcome.after = ViewReading::fromJson(object.value("after").toObject());
    return outcome;
}

std::vector<ViewEntry> Outcome::differences() const
{
    std::vector<ViewEntry> entries;
    for (const viewentries::Description& each : viewentries::all())
        if (before.view[each.entry] || after.view[each.entry])
            entries.push_back(each.entry);
    return entries;
}

} // namespace host::desktop
