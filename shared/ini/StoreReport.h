#pragma once

#include <QStringList>

/// What became of the settings that the save dialogs were asked to store.
///
/// The dialogs and file writers themselves show nothing. A program that wants to tell its user asks the
/// application object to keep the reports; without that they are dropped. GUI thread only.
namespace storereport {

/// From here on reports are kept.
void begin();
/// Adds one, as words for the user.
void add(const QString& report);
/// What was added since; ends keeping.
QStringList take();

/// Words for a file that is about to be replaced: ", in place of one with 3 entries"; empty where there is
/// none. \param path as the file system has it.
QString inPlaceOf(const QByteArray& path);
/// \param what the file: "the favourite /home/a/b.ini".
/// \param replaced what `inPlaceOf` said of it before.
/// \param problem empty when it was stored.
QString inWords(const QString& what, const QString& replaced, const QString& problem);
/// Whether something was not stored, or not whole.
bool isTrouble(const QString& report);

} // namespace storereport
