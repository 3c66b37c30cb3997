#include "Links.h"

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace host {

namespace {

const int mostLinks = 40; // as the system has it

} // namespace

std::string resolved(const std::string& path)
{
    if (const std::unique_ptr<char, void (*)(void*)> real(realpath(path.c_str(), nullptr), std::free); real)
        return real.get();
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return path == "." ? path : resolved(".") + "/" + path; // the current folder may be gone
    if (slash == 0)
        return path;
    // Folders that are missing will be made as plain ones, so ".." leads back out of them.
    const std::filesystem::path folder = resolved(path.substr(0, slash));
    std::string place = (folder / path.substr(slash + 1)).lexically_normal().string();
    if (place.size() > 1 && place.back() == '/')
        place.pop_back();
    return place;
}

std::string behindLink(const std::string& path)
{
    std::filesystem::path place = path;
    std::error_code none;
    int links = 0;
    for (; links < mostLinks && std::filesystem::is_symlink(place, none); ++links)
        place = place.parent_path() / std::filesystem::read_symlink(place, none);
    return links > 0 ? resolved(place.string()) : path;
}

} // namespace host
