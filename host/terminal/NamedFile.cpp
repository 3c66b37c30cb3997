#include "NamedFile.h"

#include "Suggestion.h"
#include "UsageError.h"
#include "host/files/FileDescriptor.h"
#include "host/files/Paths.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace host::suggestion {

namespace {

const int mostNames = 10000; // a folder may hold any number

/// The suffix makes all names alike.
std::string stemOf(const std::string& name)
{
    return name.substr(0, endOfStem(name));
}

} // namespace

std::string nearbyFile(const std::string& path, Among among)
{
    const std::size_t end = path.find_last_not_of('/') + 1; // a folder's name may end in slashes
    const std::size_t slash = path.find_last_of('/', end);
    const std::size_t begin = slash == std::string::npos || slash >= end ? 0 : slash + 1;
    std::vector<std::string> names;
    std::vector<std::string> stems;
    std::error_code problem;
    int left = mostNames;
    for (std::filesystem::directory_iterator entry(begin > 0 ? path.substr(0, begin) : ".", problem), none;
         !problem && entry != none && left > 0; entry.increment(problem), --left) {
        const std::string name = entry->path().filename().string();
        if (among == Among::Documents && !isPdfName(name) && !entry->is_directory(problem))
            continue;
        names.push_back(name);
        stems.push_back(stemOf(name));
    }
    const std::string own = path.substr(begin, end - begin); // may be there, as a link that leads nowhere
    const std::string found = nearest(stemOf(own), stems);
    for (std::size_t place = 0; !found.empty() && place < names.size(); ++place)
        if (stems[place] == found && names[place] != own)
            return "; did you mean \"" + path.substr(0, begin) + names[place] + "\"?";
    return {};
}

} // namespace host::suggestion

namespace host {

std::string readNamedFile(const std::string& path, std::size_t limit, const char* what)
{
    const FileDescriptor file(path == "-" ? dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string bytes;
    if (file.isOpen() && readAll(file.get(), bytes, limit))
        return bytes;
    const int problem = errno;
    throw UsageError(std::string(what) + " " + path + " cannot be read: " + systemError(problem) +
                     (problem == ENOENT ? suggestion::nearbyFile(path, suggestion::Among::Files) : ""));
}

} // namespace host
