#include "PasswordTrial.h"

#include <QCoreApplication>

#include <algorithm>

namespace host::desktop {

bool PasswordTrial::isWanted(const DocumentRecord& record)
{
    const QString code = record.reasonCode();
    return code == "password" || code == "permission";
}

DocumentTable::Ids PasswordTrial::begin(DocumentTable& table, int password, On which)
{
    m_before.clear();
    m_which = which;
    DocumentTable::Ids ids;
    for (const DocumentRecord& record : table.records())
        if (isWanted(record) && (which == On::All || record.passwordsTried <= password)) {
            ids.append(record.id);
            m_before.insert(record.id, record);
        }
    for (const DocumentId id : ids)
        table.change(id, [password](DocumentRecord& record) {
            record.password = password;
            record.passwordsTried = std::max(record.passwordsTried, password + 1);
        });
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
    if (opened == 0 && m_which == On::NewOnes)
        return {};
    if (opened == 0)
        return {QCoreApplication::translate("PasswordTrial",
                                            "The password opens none of the %Ln document(s) that want one.",
                                            "", closed),
                false};
    QString text =
        QCoreApplication::translate("PasswordTrial", "The password opens %Ln document(s).", "", opened);
    if (closed > 0 && m_which == On::All) // others may open them yet
        text += " " +
                QCoreApplication::translate("PasswordTrial", "%Ln document(s) want another one.", "", closed);
    return {text, true};
}

} // namespace host::desktop
