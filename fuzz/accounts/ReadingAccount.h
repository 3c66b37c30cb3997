#pragma once

#include "engine/boundary/Operations.h"
#include "engine/boundary/Session.h"
#include "engine/direct/DirectReader.h"
#include "engine/files/EngineError.h"

#include <QByteArray>
#include <QVariant>

#include <string>

namespace engine {

enum class Reading { Direct, Whole };

/// A document, all that can be asked of it and what appending a change to it gives, as text.
class ReadingAccount
{
public:
    ReadingAccount(std::string bytes, Reading reading) : m_bytes(std::move(bytes))
    {
        m_loaded = attempt([&] { return operations::LoadFromString(m_session, m_bytes, {}); }) == "1";
        if (m_loaded && reading == Reading::Whole)
            m_session.document().readWhole();
    }

    bool loaded() const { return m_loaded; }

    QByteArray view()
    {
        QByteArray text = ask([&] { return operations::GetPageMode(m_session); }) +
                          ask([&] { return operations::GetPageLayout(m_session); });
        for (int option = 1; option <= 7; ++option)
            text += ask([&] { return operations::GetViewerPreferences(m_session, option); });
        text += ask([&] { return operations::SecurityInfo(m_session, SignatureCount); });
        int count = 1;
        text += ask([&] { return count = operations::PageCount(m_session); });
        text += openAction();
        for (const int page : {1, 2, (count + 1) / 2, count, count + 1})
            text += onPage(page);
        for (int item = 0; item <= 8; ++item)
            text += ask([&] { return QString::fromStdWString(operations::GetInformation(m_session, item)); });
        return text;
    }

    /// What an update to a common set of settings adds to the document.
    QByteArray update(int page)
    {
        QByteArray text =
            ask([&] { return operations::SetPageMode(m_session, 1); }) +
            ask([&] { return operations::SetPageLayout(m_session, 5); }) +
            ask([&] { return operations::SetOpenActionDestinationFull(m_session, page, 0, 2, 0, 0, 0, 0); });
        for (int option = 1; option <= 6; ++option)
            text += ask([&] { return operations::SetViewerPreferences(m_session, option, 1); });
        return text +
               ask([&] { return QByteArray::fromStdString(operations::AppendToString(m_session, ForCopy)); });
    }

private:
    QByteArray openAction()
    {
        return ask([&] {
            const int id = operations::GetOpenActionDestination(m_session);
            if (id == 0)
                return QString("none");
            QString text = QString("type %1 page %2 %3")
                               .arg(operations::GetDestType(m_session, id))
                               .arg(operations::GetDestPage(m_session, id))
                               .arg(QString::fromStdWString(operations::GetDestName(m_session, id)));
            for (int value = 1; value <= 5; ++value)
                text += QString(" %1").arg(operations::GetDestValue(m_session, id, value));
            return text;
        });
    }

    QByteArray onPage(int page)
    {
        QByteArray text = ask([&] { return operations::SelectPage(m_session, page); });
        for (int dimension = 0; dimension <= 5; ++dimension)
            text += ask([&] { return operations::GetPageBox(m_session, 1 + dimension % 5, dimension); });
        return text + ask([&] { return operations::PageRotation(m_session); });
    }

    template <class Operation>
    QByteArray ask(Operation operation)
    {
        return attempt(operation) + "; ";
    }

    /// As the library's guard does it.
    template <class Operation>
    QByteArray attempt(Operation operation)
    {
        try {
            try {
                return QVariant(operation()).toByteArray();
            } catch (const DirectReadingEnded&) {
                m_session.document().readWhole();
                return QVariant(operation()).toByteArray();
            }
        } catch (const EngineError& error) {
            return "code " + QByteArray::number(static_cast<int>(error.code()));
        } catch (...) {
            return "exception";
        }
    }

    std::string m_bytes;
    Session m_session;
    bool m_loaded = false;
};

/// Whether the direct reader takes a document.
inline bool accepted(const std::string& bytes)
{
    auto reader = DirectReader::open(ByteSource::fromBytes(bytes));
    return reader != nullptr && reader->skeleton();
}

} // namespace engine
