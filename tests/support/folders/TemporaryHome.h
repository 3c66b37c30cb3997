#pragma once

#include "shared/CUtils.h"
#include "support/folders/Files.h"

#include <QDir>
#include <QTemporaryDir>

/// A user with empty folders of their own, for as long as the object lives.
class TemporaryHome
{
public:
    TemporaryHome()
    {
        qputenv("HOME", m_folder.path().toUtf8());
        qputenv("XDG_DATA_HOME", m_folder.filePath("share").toUtf8());
        qputenv("XDG_CONFIG_HOME", m_folder.filePath("config").toUtf8());
        reset();
    }

    /// Empties the folders again.
    void reset() const
    {
        QDir(m_folder.path()).removeRecursively();
        QDir().mkpath(m_folder.filePath("share"));
        CUtils::SetupFolders();
    }

    QString filePath(const QString& name) const { return m_folder.filePath(name); }
    static QString actionList(const QString& name) { return CUtils::GetSequenceFolder() + "/" + name; }
    static QString favorite(const QString& name) { return CUtils::GetCollectionsFolder() + "/" + name; }

private:
    QTemporaryDir m_folder;
};
