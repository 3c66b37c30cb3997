#include "PageRequest.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace host {

namespace {

QJsonObject objectIn(const std::string& line)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
}

} // namespace

std::optional<DocumentRequest> DocumentRequest::fromJson(const std::string& line)
{
    const QJsonObject object = objectIn(line);
    const QJsonValue bytes = object.value("fileBytes");
    const QByteArray file = bytes.isString() ? QByteArray::fromBase64(bytes.toString().toLatin1())
                                             : object.value("file").toString().toUtf8();
    if (file.isEmpty() || file.contains('\0'))
        return std::nullopt;
    return DocumentRequest{file.toStdString(), object.value("password").toString().toStdString()};
}

std::optional<PageRequest> PageRequest::fromJson(const std::string& line)
{
    const QJsonObject object = objectIn(line);
    const PageRequest request{object.value("id").toInt(), object.value("page").toInt(),
                              QSize(object.value("width").toInt(), object.value("height").toInt()),
                              object.value("epoch").toInt()};
    const auto pixels = static_cast<qint64>(request.room.width()) * request.room.height();
    if (request.page < 1 || request.room.isEmpty() || pixels > mostPixels)
        return std::nullopt;
    return request;
}

} // namespace host
