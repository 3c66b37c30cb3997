#pragma once

#include "Preset.h"

namespace host::desktop {

/// The user's presets: the views kept by the window, and the action lists and favourites of the action. Read
/// whenever somebody asks, so that what other programs store is among them.
class PresetFolder
{
public:
    /// \param views the folder for views.
    explicit PresetFolder(const QString& views) : m_views(views) {}

    static QString userFolder();

    /// Views, action lists, favourites, each by name.
    std::vector<Preset> presets() const;

    /// Keeps the view under the name, in place of an earlier one. \returns empty, or why it could not be kept.
    QString save(const QString& name, const ViewChange& view) const;
    /// \returns empty, or why it could not be removed. Only views can be.
    QString remove(const Preset& preset) const;

private:
    QString m_views;
};

} // namespace host::desktop
