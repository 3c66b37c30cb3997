#include "CaseOfNames.h"

#include "host/files/FileDescriptor.h"
#include "host/saving/SafeOutput.h"

#include <QString>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cctype>

namespace host {

namespace {

bool ignoresCase(const std::string& folder)
{
    const std::string file = SafeOutput::temporaryNameFor(folder + "/x");
    const FileDescriptor made(
        ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!made.isOpen())
        return false;
    std::string otherCase = file;
    const auto name = otherCase.begin() + static_cast<std::ptrdiff_t>(otherCase.rfind('/') + 1);
    std::transform(name, otherCase.end(), name,
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    struct stat status;
    const bool found = lstat(otherCase.c_str(), &status) == 0;
    SafeOutput::removeTemporary(file);
    return found;
}

/// The folder in which the two lead to different names first.
std::string folderOfDifference(const std::string& path, const std::string& other)
{
    const auto difference = std::mismatch(path.begin(), path.end(), other.begin(), other.end()).first;
    return SafeOutput::folderOf(std::string(path.begin(), difference));
}

} // namespace

std::string CaseOfNames::folded(const std::string& path)
{
    const QString text = QString::fromStdString(path);
    if (text.toStdString() == path)
        return text.normalized(QString::NormalizationForm_D).toCaseFolded().toStdString();
    std::string bytes = path; // names that are no text are compared as bytes everywhere
    std::transform(bytes.begin(), bytes.end(), bytes.begin(),
                   [](unsigned char byte) { return static_cast<char>(std::tolower(byte)); });
    return bytes;
}

bool CaseOfNames::areTheSame(const std::string& path, const std::string& other)
{
    std::string folder = folderOfDifference(path, other);
    struct stat status;
    while (folder.size() > 1 && stat(folder.c_str(), &status) != 0)
        folder = SafeOutput::folderOf(folder);
    const auto [known, isNew] = m_ignoresCase.try_emplace(folder);
    if (isNew)
        known->second = ignoresCase(folder);
    return known->second;
}

} // namespace host
