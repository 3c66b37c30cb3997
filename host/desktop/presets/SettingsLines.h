#pragma once

#include "host/settings/SettingsMap.h"

#include <QStringList>

namespace host::desktop {

/// What settings of the action do, a line each: "Open to page: 3".
QStringList settingsLines(const SettingsMap& settings);

} // namespace host::desktop
