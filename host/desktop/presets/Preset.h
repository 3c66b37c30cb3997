#pragma once

#include "host/desktop/change/ChangeDraft.h"

namespace host::desktop {

/// A change under a name: a view that the user keeps, or stored settings of the action.
struct Preset
{
    enum class Kind { View, ActionList, Favorite };

    Kind kind = Kind::View;
    QString name;
    /// Where it lies.
    QString file;
    /// Empty, or why it cannot be used; for people.
    QString problem;
    ChangeDraft draft;
};

} // namespace host::desktop
