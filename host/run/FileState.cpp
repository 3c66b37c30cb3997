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

bool isSameState(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           one.st_mtim.tv_sec == other.st_mtim.tv_sec && one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
}

} // namespace host
