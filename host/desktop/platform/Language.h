#pragma once

#include <QStringList>

/// Makes the application speak the user's language, as far as there
/// are translations; English where there are none.
namespace host::desktop::language {

/// To be called once, after the application object is made.
void choose();

/// The first of these languages ("de-AT") that the window speaks, as "de"; "en" if it is none of them.
QString firstSpoken(const QStringList& wanted);

/// Adds the window's and Qt's own texts in a language that the window speaks.
void speak(const QString& language);

} // namespace host::desktop::language
