#pragma once

#include <QList>
#include <QString>

#include <cstdarg>

/// The host's store of readable failure messages, oldest first.
///
/// The host creates it and lends it to an action with every work call; an action appends and never clears. It
/// holds no lock: callers that share one store between threads take turns. It throws only where memory ends.
class CErrorHandler
{
public:
    /// An empty store without a mirror list.
    CErrorHandler() = default;
    /// The mirror list, which is not the store's own, stays.
    virtual ~CErrorHandler();
    CErrorHandler(const CErrorHandler&) = delete;
    CErrorHandler& operator=(const CErrorHandler&) = delete;

    /// Removes every message; the mirror list keeps its entries.
    void ClearAll();

    /// Appends one message to the store, and to the mirror list where there is one.
    /// \param format as QString::vasprintf takes it: `%s` takes UTF-8, `%ls` UTF-16. A text that is no format
    ///     of the caller's own goes through "%s".
    /// \param args what the format names, in its order and types; consumed by the call.
    void Store(QString format, va_list args);

    /// printf-style front end of Store.
    void StoreError(QString format, ...);

    /// The number of messages.
    long GetCount();

    /// \param index 0 is the oldest message.
    /// \returns the message, or "Unknown error" for an index below 0 or beyond the newest.
    QString GetAt(long index);

    /// \returns the newest message, or "Unknown error" when there is none.
    QString GetLast();

    /// Log entry point; has no effect.
    void WriteToLog(const char* text, bool flag);

private:
    QList<QString> m_Errors;

public:
    /// Receives a copy of every message from now on; null for none. Set by the store's owner, who owns the
    /// list and keeps it for as long as it stands here.
    QList<QString>* m_pMirror = nullptr;
};

/// Log entry point for exception records; has no effect.
/// \param text a record as runCatchAll makes it, UTF-8; valid during the call.
void StoreErrorToLog(const char* text);

/// printf-style debug trace entry point; has no effect.
void AddToDebugFile(const char* format, ...);
