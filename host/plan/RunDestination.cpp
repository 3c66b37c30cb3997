#include "RunDestination.h"

#include "host/files/Paths.h"
#include "host/saving/SafeOutput.h"
#include "host/terminal/UsageError.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace host {

namespace {

const std::size_t shortestSuffix = 2; // "out.d" is a folder's name
const std::size_t longestSuffix = 4;

/// Whether the name ends in a suffix as files have it: a few letters. "v1.0" is none, nor is "out.d/".
bool looksLikeFile(const std::string& path)
{
    const std::size_t dot = path.rfind('.');
    const std::size_t slash = path.rfind('/');
    const std::size_t begin = slash == std::string::npos ? 0 : slash + 1;
    if (dot == std::string::npos || dot <= begin)
        return false;
    const std::string suffix = path.substr(dot + 1);
    return suffix.size() >= shortestSuffix && suffix.size() <= longestSuffix &&
           std::all_of(suffix.begin(), suffix.end(),
                       [](unsigned char each) { return std::isalpha(each) != 0; });
}

/// The path without "." and "..", links not followed: a linked document keeps the place it is named by.
std::filesystem::path absolutePath(const std::string& path)
{
    return std::filesystem::absolute(path).lexically_normal();
}

} // namespace

RunDestination RunDestination::inPlace()
{
    return {Kind::InPlace, {}};
}

RunDestination RunDestination::none()
{
    return {Kind::None, {}};
}

RunDestination RunDestination::folder(const std::string& path, const std::string& base)
{
    RunDestination folder(Kind::Folder, withoutTrailingSlashes(path));
    folder.m_base = base.empty() ? std::string() : absolutePath(base).string();
    return folder;
}

RunDestination RunDestination::file(const std::string& path)
{
    return {Kind::File, path};
}

RunDestination RunDestination::beside(const std::string& suffix)
{
    if (suffix.empty() || suffix.find_first_of(std::string_view("/\0", 2)) != std::string::npos)
        throw UsageError("--suffix takes a text for file names, without slashes, not \"" + suffix + "\"");
    if (isPdfName("x" + suffix) || suffix.starts_with('-'))
        throw UsageError("--suffix takes what stands between \"manual-\" and \".pdf\", not \"" + suffix +
                         "\"");
    return {Kind::Beside, "-" + suffix};
}

RunDestination RunDestination::named(const std::string& path, const std::string& base)
{
    if (path.empty())
        throw UsageError("-o needs the name of a folder or of a PDF file");
    struct stat status;
    const bool exists = stat(path.c_str(), &status) == 0;
    const bool isFolder = exists && S_ISDIR(status.st_mode);
    const bool isFile = path == standardStream || (!isFolder && isPdfName(path));
    if (isFile && !base.empty())
        throw UsageError("--base goes with a folder for the results, not with -o " + path);
    if (exists && !isFolder && !(isFile && S_ISREG(status.st_mode)) && path != standardStream)
        throw UsageError(path + (isFile ? " is not a regular file"
                                        : " is not a folder; a result's own name ends in .pdf"));
    if (!exists && !isFile && looksLikeFile(path))
        throw UsageError("-o " + path +
                         " is neither a folder nor the name of a PDF document; a result's own name " +
                         "ends in .pdf, and \"" + path + "/\" names a folder to be made");
    return isFile ? file(path) : folder(path, base);
}

const std::string& RunDestination::onlyFile() const
{
    static const std::string none;
    return m_kind == Kind::File ? m_path : none;
}

std::string RunDestination::pathFor(const std::string& document, const std::string& pathBelow) const
{
    switch (m_kind) {
    case Kind::Folder:
        return m_path + "/" + (m_base.empty() ? pathBelow : belowBase(document));
    case Kind::File:
        return m_path;
    case Kind::Beside:
        return std::string(document).insert(endOfStem(document), m_path);
    case Kind::None:
    case Kind::InPlace:
        break;
    }
    return document;
}

std::string RunDestination::belowBase(const std::string& document) const
{
    const std::filesystem::path below = absolutePath(document).lexically_relative(m_base);
    if (below.empty() || *below.begin() == ".." || *below.begin() == ".")
        throw UsageError(document + " does not lie below the folder " + m_base + " that --base names");
    return below.string();
}

bool RunDestination::isResultFolder(const struct stat& folder) const
{
    struct stat ours;
    return m_kind == Kind::Folder && stat(m_path.c_str(), &ours) == 0 && ours.st_dev == folder.st_dev &&
           ours.st_ino == folder.st_ino;
}

bool RunDestination::isEarlierResult(const std::string& document) const
{
    const std::size_t end = endOfStem(document);
    if (m_kind != Kind::Beside || end < m_path.size() ||
        document.compare(end - m_path.size(), m_path.size(), m_path) != 0)
        return false;
    std::string original = document;
    original.erase(end - m_path.size(), m_path.size());
    struct stat status;
    return stat(original.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

Failure RunDestination::makeFolder() const
{
    if (m_kind == Kind::File && !isStandardOutput())
        return SafeOutput::makeFolder(SafeOutput::folderOf(m_path));
    return m_kind == Kind::Folder ? SafeOutput::makeFolder(m_path) : Failure();
}

} // namespace host
