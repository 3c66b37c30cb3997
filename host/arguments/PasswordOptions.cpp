#include "PasswordOptions.h"

#include "OptionParser.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/UsageError.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace host {

namespace {

const std::size_t largestFile = 64 << 10;

/// Of this process and its workers, from now on: the password would be in it.
void leaveNoCore()
{
    prctl(PR_SET_DUMPABLE, 0);
}

/// Straight into the text: in a stream's buffer the password would stay.
bool readAllInto(std::string& bytes, int file)
{
    bytes.resize(largestFile + 1);
    std::size_t size = 0;
    for (ssize_t count = 1; count != 0 && size < bytes.size();) {
        count = ::read(file, bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno != EINTR)
            return false;
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    if (size > largestFile)
        errno = EFBIG;
    bytes.resize(size);
    return size <= largestFile;
}

} // namespace

void PasswordOptions::take(OptionParser& parser)
{
    parser.takeSecret("password", [this](char* argument) { takeFrom(argument); });
    parser.takeValue("password-file", setOnce(m_file, "--password-file"));
}

void PasswordOptions::takeFrom(char* argument)
{
    if (m_isGiven)
        throw UsageError("--password is given twice");
    m_isGiven = true;
    leaveNoCore();
    m_password.text.assign(argument);
    explicit_bzero(argument, m_password.text.size()); // the system's list of processes shows it
}

void PasswordOptions::check() const
{
    if (m_isGiven && m_file)
        throw UsageError("--password and --password-file exclude each other");
}

void PasswordOptions::read()
{
    if (!m_file)
        return;
    leaveNoCore();
    const FileDescriptor file(*m_file == "-" ? dup(STDIN_FILENO)
                                             : ::open(m_file->c_str(), O_RDONLY | O_CLOEXEC));
    engine::Wiped<char> bytes;
    if (!file.isOpen() || !readAllInto(bytes.text, file.get()))
        throw UsageError("the password file " + *m_file + " cannot be read: " + systemError(errno));
    m_password.text.assign(bytes.text, 0, bytes.text.find_first_of("\r\n"));
}

} // namespace host
