#pragma once

#include <QString>

/// Why a document could not be read, changed or undone, in words that a person can act on.
namespace host::desktop::reasontexts {

/// What helps against a reason.
enum class Remedy { None, Password, AppendSigned, AppendCertified, ReadAgain, ShowFolder };

/// The user's words for the program's code; the program's own words for a code that is not known, and behind them for a
/// mistake of the program, which is to be reported.
QString textOf(const QString& code, const QString& words);

/// A word or two for counting documents: "44 signed".
QString briefly(const QString& code);

Remedy remedyFor(const QString& code);

/// What the remedy's button says; empty for None.
QString buttonOf(Remedy remedy);

} // namespace host::desktop::reasontexts
