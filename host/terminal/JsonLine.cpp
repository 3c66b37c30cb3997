#include "JsonLine.h"

#include "TerminalText.h"

#include <QJsonDocument>

#include <algorithm>

namespace host {

namespace {

const char separator[] = "/"; // stays readable

/// A byte order mark that a name begins with belongs to it; converted by itself, Qt would take it away.
QString textOf(const std::string& name)
{
    return QString::fromStdString("/" + name).mid(1);
}

/// The character's one or two units in UTF-16. QString::fromUcs4 would take a byte order mark away.
QString unitsOf(uint character)
{
    return QChar::requiresSurrogates(character)
               ? QString(QChar(QChar::highSurrogate(character))) + QChar(QChar::lowSurrogate(character))
               : QString(QChar(character));
}

QString escape(const QString& units)
{
    QString escaped;
    for (const QChar unit : units)
        escaped += QString("\\u%1").arg(unit.unicode(), 4, 16, QChar('0'));
    return escaped;
}

bool isPlain(char byte)
{
    return byte >= ' ' && byte <= '~';
}

} // namespace

std::string jsonLine(const QJsonObject& object)
{
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    if (std::all_of(json.begin(), json.end(), isPlain)) // as nearly all of it is
        return json.toStdString() + "\n";
    QString line;
    for (const uint character : QString::fromUtf8(json).toUcs4())
        line += misleads(character) ? escape(unitsOf(character)) : unitsOf(character);
    return line.toStdString() + "\n";
}

QJsonValue textOrNull(const std::string& text)
{
    return text.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(text));
}

void insertName(QJsonObject& object, const QString& key, const std::string& name)
{
    const QString text = textOf(name);
    object.insert(key, name.empty() ? QJsonValue() : QJsonValue(text));
    if (text.toStdString() != name)
        object.insert(key + "Bytes", QString(QByteArray::fromStdString(name).toPercentEncoding(separator)));
}

std::string nameIn(const QJsonObject& object, const QString& key)
{
    const QJsonValue bytes = object.value(key + "Bytes");
    return bytes.isString() ? QByteArray::fromPercentEncoding(bytes.toString().toUtf8()).toStdString()
                            : object.value(key).toString().toStdString();
}

} // namespace host
