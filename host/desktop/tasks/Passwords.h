#pragma once

#include <QByteArray>
#include <QVector>

namespace host::desktop {

/// The passwords that were given, for as long as the window is open; in memory only, and in no core file.
class Passwords
{
public:
    Passwords() = default;
    ~Passwords();
    Passwords(const Passwords&) = delete;
    Passwords& operator=(const Passwords&) = delete;

    /// \returns its place.
    int add(const QByteArray& password);
    QByteArray at(int place) const { return m_passwords.value(place); }
    int count() const { return m_passwords.size(); }

private:
    QVector<QByteArray> m_passwords;
};

} // namespace host::desktop
