#include "DocumentOptions.h"

#include "OptionParser.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/UsageError.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace host {

namespace {

const std::size_t largestPasswordFile = 64 << 10;
const std::size_t largestList = 512 << 20; // millions of names, and an end for a device that has none

std::string readLines(const std::string& path, std::size_t limit, const char* what)
{
    const FileDescriptor file(path == "-" ? dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string bytes;
    if (!file.isOpen() || !readAll(file.get(), bytes, limit))
        throw UsageError(std::string(what) + " " + path + " cannot be read: " + systemError(errno));
    return bytes;
}

/// A list names files only.
std::string fileNamed(const std::string& name)
{
    return name == RunDestination::standardStream ? "./" + name : name;
}

} // namespace

void DocumentOptions::take(OptionParser& parser)
{
    parser.takeValue("password", setOnce(m_givenPassword, "--password"));
    parser.takeValue("password-file", setOnce(m_passwordFile, "--password-file"));
    parser.takeValue("files-from", setOnce(m_list, "--files-from"));
    parser.takeFlag("null", m_nullSeparated);
}

bool DocumentOptions::haveStandardInput(const std::vector<std::string>& words)
{
    return std::find(words.begin(), words.end(), RunDestination::standardStream) != words.end();
}

void DocumentOptions::check(const std::vector<std::string>& words, bool isInputTaken) const
{
    if (m_givenPassword && m_passwordFile)
        throw UsageError("--password and --password-file exclude each other");
    const auto readers = std::count(words.begin(), words.end(), RunDestination::standardStream) +
                         (m_passwordFile == "-" ? 1 : 0) + (m_list == "-" ? 1 : 0) + (isInputTaken ? 1 : 0);
    if (readers > 1)
        throw UsageError("standard input is named more than once, and can be read once only");
    if (m_nullSeparated && !m_list)
        throw UsageError("--null goes with --files-from");
    if (words.empty() && !m_list)
        throw UsageError("which documents? Name documents or folders, or give --files-from");
}

void DocumentOptions::read(const std::vector<std::string>& words)
{
    m_inputs = words;
    readPassword();
    if (m_list)
        readList();
}

RunPlan DocumentOptions::planForReading() const
{
    RunPlan plan(RunDestination::none());
    for (const std::string& input : m_inputs)
        input == RunDestination::standardStream ? plan.addStandardInput() : plan.add(input);
    for (const std::string& folder : plan.emptyFolders())
        note("no PDF documents in " + folder);
    if (plan.documents().empty() && plan.emptyFolders().empty())
        note("the list of documents is empty");
    return plan;
}

void DocumentOptions::readPassword()
{
    m_password = m_givenPassword.value_or("");
    if (!m_passwordFile)
        return;
    m_filesRead.push_back(*m_passwordFile);
    const std::string lines = readLines(*m_passwordFile, largestPasswordFile, "the password file");
    m_password = lines.substr(0, lines.find_first_of("\r\n"));
}

void DocumentOptions::readList()
{
    const std::string bytes = readLines(*m_list, largestList, "the list of documents");
    m_filesRead.push_back(*m_list);
    if (!m_nullSeparated && bytes.find('\0') != std::string::npos)
        throw UsageError("the list of documents " + *m_list +
                         " holds NUL characters; --null says that they end the names");
    const char separator = m_nullSeparated ? '\0' : '\n';
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find(separator, begin), bytes.size());
        if (end > begin)
            m_inputs.push_back(fileNamed(bytes.substr(begin, end - begin)));
        begin = end + 1;
    }
}

} // namespace host
