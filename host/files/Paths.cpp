#include "Paths.h"

#include <strings.h>

#include <string_view>

namespace host {

namespace {

constexpr std::string_view pdfSuffix = ".pdf";

} // namespace

bool isPdfName(const std::string& path)
{
    return path.size() > pdfSuffix.size() &&
           strcasecmp(path.c_str() + path.size() - pdfSuffix.size(), pdfSuffix.data()) == 0;
}

std::size_t endOfStem(const std::string& path)
{
    return path.size() - (isPdfName(path) ? pdfSuffix.size() : 0);
}

std::string withoutTrailingSlashes(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

} // namespace host
