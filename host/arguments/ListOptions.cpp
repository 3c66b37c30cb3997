#include "ListOptions.h"

#include "OptionParser.h"
#include "host/terminal/NamedFile.h"
#include "host/terminal/UsageError.h"

#include <algorithm>

namespace host {

namespace {

const std::size_t largestList = 512 << 20; // millions of names; /dev/zero has no end of its own

} // namespace

void ListOptions::take(OptionParser& parser)
{
    parser.takeValue("files-from", setOnce(m_list, "--files-from"));
    parser.takeFlag("null", m_nullSeparated);
}

void ListOptions::check() const
{
    if (m_nullSeparated && !m_list)
        throw UsageError("--null goes with --files-from");
}

std::vector<std::string> ListOptions::read() const
{
    std::vector<std::string> names;
    if (!m_list)
        return names;
    const std::string bytes = readNamedFile(*m_list, largestList, "the list of documents");
    if (!m_nullSeparated && bytes.find('\0') != std::string::npos)
        throw UsageError("the list of documents " + *m_list +
                         " holds NUL characters; --null says that they end the names");
    const char separator = m_nullSeparated ? '\0' : '\n';
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find(separator, begin), bytes.size());
        const std::string name = bytes.substr(begin, end - begin);
        if (!name.empty())
            names.push_back(name == "-" ? "./-" : name);
        begin = end + 1;
    }
    return names;
}

} // namespace host
