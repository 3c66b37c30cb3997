#include "NameList.h"

#include <sys/mman.h>

namespace host::desktop {

NameList::NameList(const QVector<QByteArray>& names) : m_file(memfd_create("names", MFD_CLOEXEC))
{
    QByteArray bytes;
    for (const QByteArray& name : names)
        bytes += name + '\0';
    if (!writeAll(m_file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())))
        m_file.close();
}

QString NameList::pathForChild() const
{
    return QString("/proc/self/fd/%1").arg(m_file.get());
}

} // namespace host::desktop
