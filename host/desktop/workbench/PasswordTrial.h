#pragma once

#include "host/desktop/documents/DocumentTable.h"

#include <QHash>

namespace host::desktop {

/// A password that was given is tried on all documents that want one. Those that it does not open stay as they were,
/// also if another one opens them; and a person is told how many it opened.
class PasswordTrial
{
public:
    /// Whether a document wants a password, to be read or to be changed.
    static bool isWanted(const DocumentRecord& record);

    /// Whom it is tried on: all that want one, as a person has just said, or quietly those that came since it was given.
    enum class On { All, NewOnes };

    /// \param password its place among the passwords. \returns the documents that are to be read with it.
    DocumentTable::Ids begin(DocumentTable& table, int password, On which);
    bool isUnderWay() const { return !m_before.isEmpty(); }
    /// After reading: gives back to documents what was known of them before, if nothing is now.
    void restore(DocumentTable& table) const;
    /// Once nothing more is to be found out. \returns what to say, if anything, and whether the password opened
    /// something.
    std::pair<QString, bool> end(const DocumentTable& table);

private:
    QHash<DocumentId, DocumentRecord> m_before;
    On m_which = On::All;
};

} // namespace host::desktop
