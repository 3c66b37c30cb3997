#include "FileState.h"

#include <cstdio>
#include <ctime>

namespace host {

std::string stateOf(const struct stat& file)
{
    struct tm time = {};
    gmtime_r(&file.st_mtim.tv_sec, &time);
    char date[40] = "";
    std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &time);
    char text[100];
    std::snprintf(text, sizeof text, "%lld bytes, %s.%09ldZ", static_cast<long long>(file.st_size), date,
                  file.st_mtim.tv_nsec);
    return text;
}

std::string stateOf(const std::string& path)
{
    struct stat file;
    return stat(path.c_str(), &file) == 0 ? stateOf(file) : std::string();
}

std::optional<FileState> FileState::fromText(const std::string& text)
{
    const std::size_t longest = 100;
    struct tm date = {};
    long long size = 0;
    struct stat file = {};
    if (text.size() > longest || std::sscanf(text.c_str(), "%18lld bytes, %9d-%2d-%2dT%2d:%2d:%2d.%9ldZ",
                                             &size, &date.tm_year, &date.tm_mon, &date.tm_mday, &date.tm_hour,
                                             &date.tm_min, &date.tm_sec, &file.st_mtim.tv_nsec) != 8)
        return std::nullopt;
    date.tm_year -= 1900;
    date.tm_mon -= 1;
    file.st_size = size;
    file.st_mtim.tv_sec = timegm(&date);
    if (size < 0 || stateOf(file) != text) // only what stateOf writes
        return std::nullopt;
    return FileState{size, file.st_mtim};
}

bool isSameFile(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool isSameState(const struct stat& one, const struct stat& other)
{
    return isSameFile(one, other) && one.st_size == other.st_size &&
           one.st_mtim.tv_sec == other.st_mtim.tv_sec && one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
}

} // namespace host
