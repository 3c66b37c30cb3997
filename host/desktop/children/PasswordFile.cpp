#include "PasswordFile.h"

#include <sys/mman.h>

namespace host::desktop {

PasswordFile::PasswordFile(const QByteArray& password) : m_file(memfd_create("password", MFD_CLOEXEC))
{
    const auto size = static_cast<std::size_t>(password.size());
    if (!writeAll(m_file.get(), password.constData(), size) || !writeAll(m_file.get(), "\n", 1))
        m_file.close();
}

QString PasswordFile::pathForChild() const
{
    return QString("/proc/self/fd/%1").arg(m_file.get());
}

} // namespace host::desktop
