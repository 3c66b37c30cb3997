#pragma once

#include <QSettings>

namespace host::desktop {

/// Where a person was last when files were looked for, over the ends of windows.
class LastFolders
{
public:
    enum class Use { Adding, Reports };

    /// \param settings where they are kept; must outlive this.
    explicit LastFolders(QSettings& settings) : m_settings(settings) {}

    /// The folder to begin with: the last one as long as it is there, else that of the user's documents.
    QString of(Use use) const;
    /// \param path of a file or a folder that was chosen; empty for none.
    void keepFolderOf(Use use, const QString& path);

private:
    QSettings& m_settings;
};

} // namespace host::desktop
