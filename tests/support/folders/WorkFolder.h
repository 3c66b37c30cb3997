#pragma once

#include <QString>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

/// A folder of the test's own that is the current one while the object lives. Names may be any bytes, so it
/// takes and gives standard strings.
class WorkFolder
{
public:
    WorkFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "work-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            qFatal("no work folder");
        m_path = name;
        std::filesystem::current_path(m_path);
    }
    ~WorkFolder()
    {
        std::filesystem::current_path("/");
        std::filesystem::remove_all(m_path);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    QString path() const { return QString::fromStdString(m_path.string()); }
    QString path(const std::string& name) const { return QString::fromStdString((m_path / name).string()); }

    /// Writes a file and the folders that it lies in.
    static std::string put(const std::filesystem::path& name, const std::string& bytes = "x")
    {
        if (name.has_parent_path())
            std::filesystem::create_directories(name.parent_path());
        std::ofstream(name, std::ios::binary) << bytes;
        return bytes;
    }

    static std::string contentOf(const std::filesystem::path& name)
    {
        std::ostringstream text;
        text << std::ifstream(name, std::ios::binary).rdbuf();
        return text.str();
    }

private:
    std::filesystem::path m_path;
};
