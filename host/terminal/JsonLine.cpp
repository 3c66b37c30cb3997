#include "JsonLine.h"

#include "FileNames.h"

#include <QJsonDocument>

namespace host {

namespace {

bool misleads(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

std::string jsonLine(const QJsonObject& object)
{
    QString line;
    for (const QChar character : QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)))
        if (misleads(character))
            line += QString("\\u%1").arg(character.unicode(), 4, 16, QChar('0'));
        else
            line += character;
    return line.toStdString() + "\n";
}

void insertFile(QJsonObject& object, const std::string& file)
{
    object.insert("file", QString::fromStdString(file));
    if (!isUtf8(file))
        object.insert("fileBytes", QString::fromStdString(percentEncoded(file)));
}

} // namespace host
