// A file, served by FUSE, that behaves like a disk with a cache which forgets nothing: it begins with
// an image, and each write and each flush that reaches it goes to a log, in their order. The image
// stays as it is.
//
//     recordingdisk IMAGE LOG MOUNTPOINT
//
// MOUNTPOINT/disk is the disk. What is written to MOUNTPOINT/mark goes to the log as a mark. A log is a row
// of records: a letter ('W', 'F' or 'M'), an offset and a length of eight bytes each, and so many bytes.
#define FUSE_USE_VERSION 31
#include <fuse.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

char* disk = nullptr;
off_t diskSize = 0;
std::FILE* logFile = nullptr;

const std::string_view diskName = "/disk";
const std::string_view markName = "/mark";

/// \returns whether it is in the log, where it survives the end of this process.
bool record(char kind, std::uint64_t offset, const char* bytes, std::uint64_t length)
{
    std::fputc(kind, logFile);
    std::fwrite(&offset, sizeof offset, 1, logFile);
    std::fwrite(&length, sizeof length, 1, logFile);
    std::fwrite(bytes, 1, length, logFile);
    return std::fflush(logFile) == 0 && std::ferror(logFile) == 0;
}

int getAttributes(const char* path, struct stat* status, fuse_file_info*)
{
    *status = {};
    const bool isFile = path == diskName || path == markName;
    if (!isFile && path != std::string_view("/"))
        return -ENOENT;
    status->st_mode = isFile ? S_IFREG | 0600 : S_IFDIR | 0700;
    status->st_nlink = 1;
    status->st_size = path == diskName ? diskSize : 0;
    return 0;
}

int listFolder(const char*, void* buffer, fuse_fill_dir_t fill, off_t, fuse_file_info*, fuse_readdir_flags)
{
    fill(buffer, &diskName[1], nullptr, 0, fuse_fill_dir_flags(0));
    fill(buffer, &markName[1], nullptr, 0, fuse_fill_dir_flags(0));
    return 0;
}

int openFile(const char*, fuse_file_info*)
{
    return 0;
}

int readFile(const char* path, char* to, std::size_t size, off_t offset, fuse_file_info*)
{
    if (path != diskName || offset >= diskSize)
        return 0;
    const auto count = std::min(size, static_cast<std::size_t>(diskSize - offset));
    std::memcpy(to, disk + offset, count);
    return static_cast<int>(count);
}

int writeFile(const char* path, const char* from, std::size_t size, off_t offset, fuse_file_info*)
{
    const bool isMark = path == markName;
    if (!isMark && (offset < 0 || static_cast<std::size_t>(diskSize - offset) < size))
        return -ENOSPC;
    if (!isMark)
        std::memcpy(disk + offset, from, size);
    const bool recorded = record(isMark ? 'M' : 'W', static_cast<std::uint64_t>(offset), from, size);
    return recorded ? static_cast<int>(size) : -EIO;
}

int flushFile(const char* path, int, fuse_file_info*)
{
    return path == diskName && !record('F', 0, nullptr, 0) ? -EIO : 0;
}

int cutFile(const char*, off_t, fuse_file_info*)
{
    return 0; // the shell opens the mark with O_TRUNC
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    const int image = open(argv[1], O_RDONLY | O_CLOEXEC);
    diskSize = lseek(image, 0, SEEK_END);
    void* const mapped = mmap(nullptr, static_cast<std::size_t>(diskSize), PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_NORESERVE, image, 0);
    logFile = std::fopen(argv[2], "wb");
    if (mapped == MAP_FAILED || logFile == nullptr) {
        std::perror("recordingdisk");
        return 1;
    }
    disk = static_cast<char*>(mapped);
    fuse_operations operations = {};
    operations.getattr = getAttributes;
    operations.readdir = listFolder;
    operations.open = openFile;
    operations.read = readFile;
    operations.write = writeFile;
    operations.fsync = flushFile;
    operations.truncate = cutFile;
    // In the foreground, and one request after the other: what is in the log is in its order.
    char foreground[] = "-f";
    char single[] = "-s";
    char* options[] = {argv[0], foreground, single, argv[3], nullptr};
    return fuse_main(4, options, &operations, nullptr);
}
