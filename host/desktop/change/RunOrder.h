#pragma once

#include "ChangeDraft.h"
#include "Destination.h"
#include "host/desktop/documents/DocumentTable.h"

#include <map>

namespace host::desktop {

/// All that a run is told besides its documents.
struct RunOrder
{
    ChangeDraft draft;
    Destination destination;

    /// The program's options, without those about documents, reports and output.
    QStringList arguments(const QString& base) const;
    /// Empty, or why no run can begin over the documents; for people. \param base as for arguments().
    QString problem(const QString& base) const;
    /// The deepest folder in which all of the documents lie, and whose name is text.
    static QString commonFolder(const DocumentTable& table, const DocumentTable::Ids& ids);
    /// Where the result of a document goes. \param base as for arguments().
    QByteArray resultOf(const QByteArray& path, const QString& base) const;
    /// Documents that are run over together: by the place of their password, and what may be done if they are signed.
    using Kind = std::pair<int, DocumentRecord::Signed>;
    static std::map<Kind, DocumentTable::Ids> kindsOf(const DocumentTable& table,
                                                      const DocumentTable::Ids& ids);
    /// The options that a kind takes besides.
    static QStringList argumentsOf(DocumentRecord::Signed howSigned);

    /// The line that does the same, for a shell. Passwords are no part of it: they are read from the terminal.
    QString commandLine(const DocumentTable& table, const DocumentTable::Ids& ids) const;

    /// How two orders differ.
    struct Difference
    {
        /// What a person knows it by, as "Panel"; empty for several settings.
        QString name;
        /// It came about key by key.
        bool isTyped = false;
    };
    Difference differenceFrom(const RunOrder& other) const;

    bool operator==(const RunOrder&) const = default;
};

} // namespace host::desktop
