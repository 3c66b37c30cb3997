#pragma once

#include "SettingsMap.h"

#include <QImage>

#include <string>

class CIniFile;

namespace host {

class ViewChange;

/// A file that settings are to be written to: an action list, a favourite, tool settings or a view, as its
/// suffix says.
class SettingsOutput
{
public:
    /// Where the settings come from when the same file is changed: everything else in it stays.
    struct Edit
    {
        /// The file; empty when there is none.
        std::string file;
        /// In an action list, the number of the entry's keys.
        int entry = 0;
    };

    struct Outcome
    {
        bool isWritten = false;
        /// What was stored where and what it replaced, or why nothing was; may hold bytes of file names.
        std::string words;
    };

    /// Throws UsageError when the suffix is unknown or no file can be written there.
    explicit SettingsOutput(const std::string& path);

    /// Whether it is a view, which does not hold settings.
    bool isView() const { return m_kind == Kind::View; }

    /// Replaces the file as a whole, or leaves it as it was.
    /// \param edit when it names this very file, its other content is kept.
    /// \param icon goes with a favourite that has none.
    Outcome write(const SettingsMap& settings, const Edit& edit, const QImage& icon) const;
    /// The same for a view.
    Outcome write(const ViewChange& view) const;

private:
    enum class Kind { ActionList, Favorite, ToolSettings, View };

    static Kind kindOf(const std::string& path);
    void checkPlace() const;
    bool isSameFile(const std::string& path, std::string& problem) const;
    std::string folderProblem() const;
    void compose(CIniFile& file, const SettingsMap& settings, int entry, const QImage& icon) const;
    void composeActionList(CIniFile& file, const SettingsMap& settings, int entry) const;
    void composeFavorite(CIniFile& file, SettingsMap settings, const QImage& icon) const;
    /// \param problem empty when it was written.
    Outcome outcome(const QString& replaced, const QString& problem) const;
    QString baseName() const;

    std::string m_path;
    Kind m_kind;
};

} // namespace host
