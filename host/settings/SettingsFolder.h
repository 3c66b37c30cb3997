#pragma once

#include "SettingsFile.h"

#include <sys/types.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// One of the user's folders of stored settings, in which they are found by name.
class SettingsFolder
{
public:
    static SettingsFolder actionLists();
    static SettingsFolder favorites();

    const std::string& path() const { return m_path; }
    /// One of its files in words: "action list" or "favourite".
    const char* kind() const { return m_kind; }

    /// Makes the folder if it is missing and has a place (HomeFolder.h). \returns empty, or why
    /// it cannot be had.
    std::string make() const;

    /// The names of its files in byte order, those in folders below it ("a/b.xqq") included. Folders of
    /// folders are followed 16 deep, and each one once, whatever links lead to it. Throws UsageError when the
    /// folder itself cannot be read; one below that cannot is among the names, and describe() says why.
    std::vector<std::string> files() const;
    std::string pathOf(const std::string& file) const { return m_path + "/" + file; }
    /// Throws UsageError when the file cannot be read.
    StoredSettings describe(const std::string& file) const { return m_describe(pathOf(file)); }
    /// A file's name without its suffix.
    std::string baseName(const std::string& file) const;
    /// The stored name; without one, the file's.
    std::string nameOf(const std::string& file, const StoredSettings& stored) const;

    /// The file that the user means: the one at that path, else the one in the folder that has the name,
    /// stored or as a file. Throws UsageError, with the names that there are, when none or several have it.
    std::string find(const std::string& pathOrName) const;

private:
    using FolderId = std::pair<dev_t, ino_t>;
    using Describe = StoredSettings (*)(const std::string& path);

    SettingsFolder(const QString& path, const char* suffix, const char* kind, Describe words);
    bool collect(const std::string& below, std::set<FolderId>& seen, std::vector<std::string>& names) const;
    bool hasSuffix(const std::string& file) const;
    bool hasName(const std::string& file, const std::string& name) const;
    /// Without their suffix.
    std::vector<std::string> baseNames(const std::vector<std::string>& files) const;
    std::string namesOf(const std::vector<std::string>& files) const;

    std::string m_path;
    std::string m_suffix;
    const char* m_kind;
    Describe m_describe;
};

} // namespace host
