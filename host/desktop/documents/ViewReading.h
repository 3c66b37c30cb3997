#pragma once

#include "host/change/ViewChange.h"

#include <QJsonObject>
#include <QString>

namespace host::desktop {

/// The entries of a view as the program tells them. What it does not understand it leaves out: a document may
/// say anything.
struct ViewReading
{
    /// Unset for what is told to be missing; nothing for what is not told.
    ViewChange view;
    /// What kind of open action it is, where that is none that shows a page; else empty.
    QString action;

    static ViewReading fromJson(const QJsonObject& object);

    /// The value, or for the page the action, in the user's words.
    QString textOf(ViewEntry entry) const;

    bool operator==(const ViewReading&) const = default;
};

} // namespace host::desktop
