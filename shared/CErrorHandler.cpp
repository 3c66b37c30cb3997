#include "CErrorHandler.h"

namespace {

const char* const unknownError = "Unknown error";

} // namespace

CErrorHandler::~CErrorHandler()
{
    ClearAll();
}

void CErrorHandler::ClearAll()
{
    m_Errors.clear();
}

void CErrorHandler::Store(QString format, va_list args)
{
    const QString message = QString::vasprintf(format.toUtf8().constData(), args);
    m_Errors.append(message);
    if (m_pMirror != nullptr)
        m_pMirror->append(message);
}

void CErrorHandler::StoreError(QString format, ...)
{
    va_list args;
    va_start(args, format);
    Store(format, args);
    va_end(args);
}

long CErrorHandler::GetCount()
{
    return m_Errors.size();
}

QString CErrorHandler::GetAt(long index)
{
    return index >= 0 && index < GetCount() ? m_Errors.at(static_cast<int>(index)) : QString(unknownError);
}

QString CErrorHandler::GetLast()
{
    return GetAt(GetCount() - 1);
}

void CErrorHandler::WriteToLog(const char*, bool) {}
