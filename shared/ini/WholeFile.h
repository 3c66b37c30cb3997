#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Small files that are read and replaced as a whole. Paths are bytes, as the file system has them.
namespace wholefile {

/// The system's words for an errno value.
QString systemError(int number);

/// Never waits for a writer of a FIFO.
/// \param limit in bytes; a longer file is refused.
/// \param[out] problem why there is nothing; "no such file or directory" may not be one to the caller, who
///     finds ENOENT in errno then.
std::optional<QByteArray> read(const QByteArray& path, qint64 limit, QString& problem);

/// Puts a new file in the place of whatever is at the path, except a folder, by one rename: others see the
/// old file or the new one, also after a power failure. The new file gets permissions, ACL and, where the
/// system allows it, owner and group of the old one. It is never open to anybody whom the old one was closed
/// to. \returns empty, or why everything is as it was.
QString replace(const QByteArray& path, const QByteArray& bytes);

/// Follows the links that a path ends in, also to where nothing is. \returns empty when they go in a circle.
QByteArray behindLinks(QByteArray path);

/// The folder that a file lies in.
QByteArray folderOf(const QByteArray& path);

} // namespace wholefile
