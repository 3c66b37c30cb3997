#include "HandedFile.h"

#include <sys/mman.h>

namespace host::desktop {

HandedFile::HandedFile(const char* what) : m_file(memfd_create(what, MFD_CLOEXEC)) {}

HandedFile HandedFile::ofNames(const QVector<QByteArray>& names)
{
    QByteArray bytes;
    for (const QByteArray& name : names)
        bytes += name + '\0';
    HandedFile file("names");
    file.write(bytes);
    return file;
}

HandedFile HandedFile::ofPassword(const QByteArray& password)
{
    HandedFile file("password");
    file.write(password);
    file.write("\n");
    return file;
}

QString HandedFile::pathForChild() const
{
    return QString("/proc/self/fd/%1").arg(m_file.get());
}

void HandedFile::write(const QByteArray& bytes)
{
    if (!writeAll(m_file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())))
        m_file.close();
}

} // namespace host::desktop
