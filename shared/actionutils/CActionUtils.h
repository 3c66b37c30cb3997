#pragma once

#include <QString>

/// Helpers that every action plug-in of the host shares; all static.
class CActionUtils
{
public:
    // Folders: the results of CUtils' getters, unchanged.
    static QString GetSettingsFolder();
    static QString GetCollectionsFolder();
    static QString GetSequenceFolder();
    /// CUtils::GetAppDataToolsFolder.
    static QString GetQuintarAppDataFolder();
};
