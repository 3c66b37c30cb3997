#pragma once

#include <QList>
#include <QString>

#include <cstdarg>

/// The host's store of readable failure messages, oldest first.
///
/// The host creates it and lends it to an action with every work call. It holds no lock: callers that share
/// one store between threads take turns.
class CErrorHandler
{
public:
    CErrorHandler() = default;
    virtual ~CErrorHandler();
    CErrorHandler(const CErrorHandler&) = delete;
    CErrorHandler& operator=(const CErrorHandler&) = delete;

    /// Removes every message; the mirror list keeps its entries.
    void ClearAll();

    /// Appends one message, formatted as QString::vasprintf does: `%s` takes UTF-8.
    void Store(QString format, va_list args);

    /// printf-style front end of Store.
    void StoreError(QString format, ...);

    long GetCount();

    /// The message at `index` (0 is the oldest), or "Unknown error" where there is none.
    QString GetAt(long index);

    /// The newest message, or "Unknown error" when there is none.
    QString GetLast();

    /// Log entry point; has no effect.
    void WriteToLog(const char* text, bool flag);

private:
    QList<QString> m_Errors;

public:
    /// Receives a copy of every stored message; null for none. Set by the store's owner, who owns the list.
    QList<QString>* m_pMirror = nullptr;
};

/// Log entry point for exception records; has no effect.
void StoreErrorToLog(const char* text);

/// printf-style debug trace entry point; has no effect.
void AddToDebugFile(const char* format, ...);
