#pragma once

#include "ViewReading.h"

#include <vector>

namespace host::desktop {

/// What a check says that a run would do to a document, or what a run or undoing did.
struct Outcome
{
    enum class Kind {
        WillChange,
        AsAsked, ///< It opens so already.
        Cannot,  ///< A run would fail.
        Changed,
        Unchanged,
        Failed,
        NotDone,
        Undone,
        LeftAlone, ///< Undoing passed it over.
    };

    Kind kind = Kind::NotDone;
    /// The program's, in words of its own; empty where nothing is wrong. ReasonTexts.h has the user's words.
    QString reasonCode;
    QString reason;
    QString note;
    /// Where the result lies, as the file system has it; empty where the document itself is the result.
    QByteArray file;
    /// Only the entries that differ.
    ViewReading before;
    ViewReading after;

    /// What `result` events say.
    static Outcome fromJson(const QJsonObject& object, bool isCheck);

    bool isTrouble() const { return kind == Kind::Cannot || kind == Kind::Failed; }
    /// The entries that differ, in their order.
    std::vector<ViewEntry> differences() const;
};

} // namespace host::desktop
