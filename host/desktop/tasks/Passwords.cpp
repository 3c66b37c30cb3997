#include "Passwords.h"

#include <sys/resource.h>

#include <cstring>

namespace host::desktop {

namespace {

/// Programs that are given core files get none for a limit of 1, nor are files written for so little. To be closed
/// to others altogether is no choice here: what of the desktop asks who is speaking would get no answer, and other
/// windows would take this one for gone.
void leaveNoCore()
{
    const rlimit least{1, 1};
    setrlimit(RLIMIT_CORE, &least);
}

} // namespace

/// Where copies share the bytes, they are overwritten with them.
Passwords::~Passwords()
{
    for (const QByteArray& password : m_passwords)
        explicit_bzero(const_cast<char*>(password.constData()), static_cast<std::size_t>(password.size()));
}

int Passwords::add(const QByteArray& password)
{
    leaveNoCore();
    const int known = m_passwords.indexOf(password);
    if (known >= 0)
        return known;
    m_passwords.append(password);
    return m_passwords.size() - 1;
}

} // namespace host::desktop
