#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <variant>

/// What the program tells in its lines of events. Documents are named by their places in the list that the
/// program was given, or in the order in which it has found them.
namespace host::desktop {

struct StartEvent
{
    int version = 0;
    int documents = 0;
};

struct FoundEvent
{
    int number = 0;
    QByteArray path;
};

struct DocumentEvent
{
    int number = 0;
    QJsonObject facts;
};

struct ResultEvent
{
    int number = 0;
    QJsonObject result;
};

struct ProgressEvent
{
    int done = 0;
    int failed = 0;
};

struct EndEvent
{
    QJsonObject counts;
    bool wasStopped = false;
};

/// One that a later program tells; to be passed over.
struct OtherEvent
{};

/// A line that is no event.
struct BadLine
{
    QString reason;
};

using Event = std::variant<StartEvent, FoundEvent, DocumentEvent, ResultEvent, ProgressEvent, EndEvent,
                           OtherEvent, BadLine>;
using Events = QVector<Event>;

} // namespace host::desktop
