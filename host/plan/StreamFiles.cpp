#include "StreamFiles.h"

#include "RunDestination.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/UsageError.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace host {

namespace {

const std::uint64_t largestDocument = std::uint64_t(4) << 30;
const std::size_t readAtOnce = 64 << 10;

[[noreturn]] void refuseInput(const std::string& why)
{
    throw UsageError("the document from standard input cannot be taken: " + why);
}

} // namespace

std::string shownName(const std::string& name)
{
    return name == RunDestination::standardStream ? "standard input" : name;
}

StreamFiles::StreamFiles()
{
    const char* chosen = std::getenv("TMPDIR");
    const std::filesystem::path place = chosen != nullptr && *chosen != 0 ? chosen : "/tmp";
    std::string name = (std::filesystem::absolute(place) / "quintar-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw UsageError("no temporary folder can be made in " + place.string() + ": " + systemError(errno) +
                         "; TMPDIR names another place");
    m_folder = name;
}

StreamFiles::~StreamFiles()
{
    remove();
}

void StreamFiles::remove()
{
    std::error_code nobodyIsTold;
    std::filesystem::remove_all(m_folder, nobodyIsTold);
    m_signalsBefore.restore(); // a signal that waits ends the program here
}

void StreamFiles::readInput()
{
    if (isatty(STDIN_FILENO) != 0)
        refuseInput("standard input is a terminal; \"< FILE.pdf\" reads a file");
    const FileDescriptor file(::open(document().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.isOpen())
        refuseInput(document() + " cannot be written: " + systemError(errno));
    std::array<char, readAtOnce> bytes;
    std::uint64_t size = 0;
    for (;;) {
        waitForInput();
        const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (count < 0)
            refuseInput(systemError(errno));
        if (count == 0)
            return;
        size += static_cast<std::uint64_t>(count);
        if (size > largestDocument)
            refuseInput("it is larger than 4 GiB");
        if (!writeAll(file.get(), bytes.data(), static_cast<std::size_t>(count)))
            refuseInput(document() + " cannot be written: " + systemError(errno));
    }
}

void StreamFiles::waitForInput() const
{
    std::array<pollfd, 2> either{pollfd{STDIN_FILENO, POLLIN, 0}, pollfd{m_stop.descriptor(), POLLIN, 0}};
    poll(either.data(), either.size(), -1);
    if (either[1].revents != 0)
        refuseInput("stopped by a signal");
}

void StreamFiles::checkOutput()
{
    if (isatty(STDOUT_FILENO) != 0)
        throw UsageError("-o - would print a PDF document on the terminal; \"> FILE.pdf\" writes a file");
}

void StreamFiles::printResult()
{
    const FileDescriptor file = openRegularFile(result());
    const int problem = errno;
    const bool isThere = access(result().c_str(), F_OK) == 0;
    remove();
    if (!file.isOpen() && isThere)
        throw OutputError(problem);
    std::array<char, readAtOnce> bytes;
    for (ssize_t count = 1; file.isOpen() && count > 0;) {
        count = ::read(file.get(), bytes.data(), bytes.size());
        if (count < 0)
            throw OutputError(errno);
        host::printResult(std::string_view(bytes.data(), static_cast<std::size_t>(count)));
    }
}

} // namespace host
