#include "JsonLine.h"

#include "TerminalText.h"

#include <QJsonDocument>

namespace host {

namespace {

const char unreserved[] = "/";

/// A byte order mark that a name begins with belongs to it; converted by itself, Qt would take it away.
QString textOf(const std::string& name)
{
    return QString::fromStdString("/" + name).mid(1);
}

QString escape(const QString& text)
{
    QString escaped;
    for (const QChar unit : text)
        escaped += QString("\\u%1").arg(unit.unicode(), 4, 16, QChar('0'));
    return escaped;
}

} // namespace

std::string jsonLine(const QJsonObject& object)
{
    QString line;
    for (const uint character :
         QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)).toUcs4()) {
        const QString text = QString::fromUcs4(&character, 1);
        line += misleads(character) ? escape(text) : text;
    }
    return line.toStdString() + "\n";
}

void insertName(QJsonObject& object, const QString& key, const std::string& name)
{
    const QString text = textOf(name);
    object.insert(key, name.empty() ? QJsonValue() : QJsonValue(text));
    if (text.toStdString() != name)
        object.insert(key + "Bytes", QString(QByteArray::fromStdString(name).toPercentEncoding(unreserved)));
}

std::string nameIn(const QJsonObject& object, const QString& key)
{
    const QJsonValue bytes = object.value(key + "Bytes");
    return bytes.isString() ? QByteArray::fromPercentEncoding(bytes.toString().toUtf8()).toStdString()
                            : object.value(key).toString().toStdString();
}

} // namespace host
