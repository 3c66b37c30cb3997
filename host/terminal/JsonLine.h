#pragma once

#include <QJsonObject>

#include <string>

/// JSON for standard output, an object a line.
namespace host {

/// The object in one line with its line feed. Characters that control or mislead a terminal are escaped.
std::string jsonLine(const QJsonObject& object);

/// Puts a file's name under "file", and under "fileBytes" its bytes if they are not UTF-8, percent-encoded.
void insertFile(QJsonObject& object, const std::string& file);

} // namespace host
