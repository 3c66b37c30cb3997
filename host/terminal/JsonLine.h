#pragma once

#include <QJsonObject>

#include <string>

/// JSON for standard output and reports, an object a line.
namespace host {

/// The object in one line with its line feed. Characters that mislead (TerminalText.h) are escaped, which a
/// reader of JSON undoes.
std::string jsonLine(const QJsonObject& object);

/// Null for an empty text.
QJsonValue textOrNull(const std::string& text);

/// Puts a file's name under a key, null for an empty one. JSON holds text only: bytes of the name that are
/// none show as U+FFFD there, and all of its bytes stand percent-encoded beside, under the key with "Bytes"
/// added.
void insertName(QJsonObject& object, const QString& key, const std::string& name);

/// The bytes of a name that `insertName` has put there.
std::string nameIn(const QJsonObject& object, const QString& key);

} // namespace host
