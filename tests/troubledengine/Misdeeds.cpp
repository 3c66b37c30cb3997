#include "Misdeeds.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <linux/xattr.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>

namespace fs = std::filesystem;

namespace misdeeds {

namespace {

pid_t parent = 0;
const char* homeFolder = nullptr; ///< In the environment.
std::string homePath;

std::string home(const char* name)
{
    return homePath + "/" + name;
}

bool canRead(const std::string& path)
{
    char byte = 0;
    const int file = open(path.c_str(), O_RDONLY);
    return file >= 0 && read(file, &byte, 1) == 1;
}

bool readsKey()
{
    return canRead(home(".ssh/id"));
}

bool writesOutside()
{
    return open(home("written").c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600) >= 0;
}

bool connects()
{
    sockaddr_un address{AF_UNIX, {}};
    home("socket").copy(address.sun_path, sizeof address.sun_path - 1);
    const int end = socket(AF_UNIX, SOCK_STREAM, 0);
    return connect(end, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// By the call itself: around fork(), sanitizers hold locks that they need to end the process.
bool forks()
{
    const auto child = static_cast<pid_t>(syscall(SYS_clone, SIGCHLD, nullptr, nullptr, nullptr, nullptr));
    if (child == 0)
        _exit(0);
    return waitpid(child, nullptr, 0) == child;
}

bool executes()
{
    execl("/bin/true", "true", nullptr);
    return false;
}

bool traces()
{
    return ptrace(PTRACE_SEIZE, parent, nullptr, nullptr) == 0;
}

bool signals()
{
    return kill(0, SIGCONT) == 0;
}

/// Reads the document that another worker has open.
bool spies()
{
    std::error_code problem;
    for (int attempt = 0; attempt < 200 && canRead("/proc/self/stat"); ++attempt, usleep(10'000))
        for (const fs::directory_entry& process : fs::directory_iterator("/proc", problem))
            for (const fs::directory_entry& file : fs::directory_iterator(process.path() / "fd", problem))
                if (fs::read_symlink(file.path(), problem).filename() == "0-slow.pdf")
                    return canRead(file.path());
    return false;
}

bool learns()
{
    return homePath == homeFolder;
}

#if defined(__x86_64__)
/// Makes a call that is numbered otherwise than those of this machine; whether the kernel has it does not matter.
bool switches()
{
    return syscall(0x40000000 + SYS_getpid) != 0;
}
#endif

/// Memory that does not count.
bool shares()
{
    return mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0) != MAP_FAILED;
}

/// Whether it can give a document that it may only read another mode.
bool gives(const char* document, mode_t mode)
{
    const int file = open(home(document).c_str(), O_RDONLY);
    return fchmod(file, mode) == 0 && fchmod(file, 0644) == 0;
}

/// Empties a document that it may only read.
bool empties()
{
    return open(home("1-empties.pdf").c_str(), O_RDONLY | O_TRUNC) >= 0;
}

/// All who start it do so as its owner.
bool lends()
{
    return gives("1-lends.pdf", 04755);
}

bool bares()
{
    return gives("1-bares.pdf", 0666);
}

/// Has all who start a document do so with rights of root.
bool grants()
{
    const int file = open(home("1-grants.pdf").c_str(), O_RDONLY);
    const vfs_cap_data rights{VFS_CAP_REVISION_2 | VFS_CAP_FLAGS_EFFECTIVE, {{1 << CAP_CHOWN, 0}, {0, 0}}};
    return fsetxattr(file, XATTR_NAME_CAPS, &rights, sizeof rights, 0) == 0;
}

/// It has the report open, and nothing else that is a file.
bool scribbles()
{
    struct stat status;
    for (int file = STDERR_FILENO + 1; file < 100; ++file)
        if (fstat(file, &status) == 0 && S_ISREG(status.st_mode))
            return true;
    return false;
}

struct Misdeed
{
    const wchar_t* name;
    bool (*done)();
};

const Misdeed all[] = {
    {L"reads-key", readsKey},  {L"writes-outside", writesOutside},
    {L"connects", connects},   {L"forks", forks},
    {L"executes", executes},   {L"traces", traces},
    {L"signals", signals},     {L"spies", spies},
    {L"shares", shares},       {L"lends", lends},
    {L"bares", bares},         {L"grants", grants},
    {L"scribbles", scribbles}, {L"empties", empties},
    {L"learns", learns},
#if defined(__x86_64__)
    {L"switches", switches},
#endif
};

} // namespace

void prepare()
{
    parent = getppid();
    homeFolder = std::getenv("HOME");
    homePath = homeFolder;
}

bool allDone(const std::wstring& name)
{
    for (const Misdeed& each : all)
        if (name.find(each.name) != std::wstring::npos && !each.done())
            return false;
    return true;
}

} // namespace misdeeds
