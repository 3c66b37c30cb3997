#include "PasswordTrial.h"

#include <QCoreApplication>

namespace host::desktop {

bool PasswordTrial::isWanted(const DocumentRecord& record)
{
    const QString code = record.reasonCode();
    return code == "password" || code == "permission";
}

DocumentTable::Ids PasswordTrial::begin(DocumentTable& table, int password)
{
    m_before.clear();
    DocumentTable::Ids ids;
    for (const DocumentRecord& record : table.records())
        if (isWanted(record)) {
            ids.append(record.id);
            m_before.insert(record.id, record);
        }
    for (const DocumentId id : ids)
        table.change(id, [password](DocumentRecord& record) { record.password = password; });
    return ids;
}

void PasswordTrial::restore(DocumentTable& table) const
{
    for (const DocumentRecord& before : m_before)
        table.change(before.id, [&before](DocumentRecord& record) {
            if (record.facts)
                return;
            record.password = before.password;
            record.facts = before.facts;
            if (before.facts) {
                record.troubleCode = before.troubleCode;
                record.trouble = before.trouble;
            }
        });
    table.flush();
}

std::pair<QString, bool> PasswordTrial::end(const DocumentTable& table)
{
    int opened = 0;
    int closed = 0;
    for (const DocumentRecord& before : std::exchange(m_before, {}))
        if (const DocumentRecord* record = table.find(before.id)) {
            const bool isRead =
                record->facts && !before.facts; // though it may want the owner's to be changed
            ++(isRead || !isWanted(*record) ? opened : closed);
        }
    if (opened == 0)
        return {QCoreApplication::translate("PasswordTrial",
                                            "The password opens none of the %Ln document(s) that want one.",
                                            "", closed),
                false};
    QString text =
        QCoreApplication::translate("PasswordTrial", "The password opens %Ln document(s).", "", opened);
    if (closed > 0)
        text += " " +
                QCoreApplication::translate("PasswordTrial", "%Ln document(s) want another one.", "", closed);
    return {text, true};
}

} // namespace host::desktop
