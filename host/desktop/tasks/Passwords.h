#pragma once

#include <QByteArray>
#include <QVector>

namespace host::desktop {

/// The passwords that were given, for as long as the window is open; in memory only.
class Passwords
{
public:
    /// \returns its place.
    int add(const QByteArray& password)
    {
        const int known = m_passwords.indexOf(password);
        if (known >= 0)
            return known;
        m_passwords.append(password);
        return m_passwords.size() - 1;
    }
    QByteArray at(int place) const { return m_passwords.value(place); }
    int count() const { return m_passwords.size(); }

private:
    QVector<QByteArray> m_passwords;
};

} // namespace host::desktop
