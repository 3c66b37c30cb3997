#include "HomeFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace host::homefolder {

namespace {

std::string variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

std::string problem()
{
    const std::string chosen = variable("XDG_DATA_HOME");
    const std::string home = variable("HOME");
    const std::string place = chosen.starts_with('/') ? chosen : home;
    if (place.empty())
        return "there is no home folder: HOME is not set";
    if (place.find_first_not_of('/') == std::string::npos)
        return "the home folder is /, in which there is no place for settings";
    struct stat status;
    if (place == home && (stat(home.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)))
        return "the home folder " + home + " does not exist";
    if (stat(place.c_str(), &status) == 0 && geteuid() == 0 && status.st_uid != 0)
        return "the folder " + place + " is another user's";
    return {};
}

} // namespace host::homefolder
