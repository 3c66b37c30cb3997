#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace host {

/// An action's settings, by the names of the widgets that show them.
using SettingsMap = QMap<QString, QVariant>;

} // namespace host
