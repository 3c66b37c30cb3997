#include "Checksum.h"

#include <QCryptographicHash>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace host {

namespace {

const std::int64_t window = 32 << 10;

bool addTo(QCryptographicHash& hash, int file, std::int64_t begin, std::int64_t end)
{
    std::array<char, window> bytes;
    while (begin < end) {
        const auto wanted = static_cast<std::size_t>(std::min(end - begin, window));
        errno = 0;
        const ssize_t count = pread(file, bytes.data(), wanted, begin);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        hash.addData(bytes.data(), static_cast<int>(count));
        begin += count;
    }
    return true;
}

} // namespace

std::string checksumOf(int file, std::int64_t size)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const bool whole = size <= 2 * window;
    const bool read = whole ? addTo(hash, file, 0, size)
                            : addTo(hash, file, 0, window) && addTo(hash, file, size - window, size);
    return read ? hash.result().toHex().toStdString() : std::string();
}

std::string checksumOf(std::string_view bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes.data(), static_cast<int>(bytes.size()));
    return hash.result().toHex().toStdString();
}

} // namespace host
