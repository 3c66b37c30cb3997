#pragma once

#include "DocumentFacts.h"
#include "Outcome.h"

#include <QByteArray>

#include <memory>

namespace host::desktop {

/// Names a row for as long as the window is open.
using DocumentId = int;

/// Everything that the window knows of a document.
struct DocumentRecord
{
    enum class State {
        Waiting,
        Known,
        Unreadable,
        WillChange,
        AsAsked,
        Cannot,
        Changed,
        Unchanged,
        Written, ///< The result is a file of its own, and the document as it was.
        Copied,  ///< The same, and the result opens as the document does.
        Failed,
        NotDone,
        Undone,
        LeftAlone
    };

    /// What a run may do to it if it is signed.
    enum class Signed { Refuse, Append, AppendCertified };

    DocumentId id = 0;
    /// Its path as the file system has it; need not be text.
    QByteArray path;
    QString name;
    QString folder;
    /// Null until it is read. Kept apart, so that thousands of records are
    /// moved quickly; a copy of a record shares them.
    std::shared_ptr<const DocumentFacts> facts;
    /// Why it could not be read; else empty.
    QString troubleCode;
    QString trouble;
    std::shared_ptr<const Outcome> check;
    std::shared_ptr<const Outcome> result;
    /// Which of the session's passwords opens it; -1 for none.
    int password = -1;
    /// How many of them it was read with, from the first one on.
    int passwordsTried = 0;
    /// The change is not for it now, so its check is not shown.
    bool isAside = false;
    Signed howSigned = Signed::Refuse;

    static DocumentRecord of(DocumentId id, const QByteArray& path);

    State state() const;
    /// The result, without one the check's answer; null without either.
    const Outcome* outcome() const;
    /// The code of what is wrong with it, of reading or of its outcome; else empty.
    QString reasonCode() const;
    bool isInTrouble() const;
    /// Facts, answers and results are of the file as it was; to be read again.
    void forget();
};

} // namespace host::desktop
