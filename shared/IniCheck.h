#pragma once

#include <QByteArray>

/// Whether QSettings may be let near a file that someone else may have written.
///
/// QSettings decodes every value of a file that it opens, and follows whatever nesting, lengths and types a
/// stored variant claims until stack or memory is gone. This looks at all of them first.
/// \param ini the bytes of an INI file. A file with variants has to be as QSettings writes it.
/// \returns false when a variant is nested more than 64 deep, claims more than the file holds, or holds a
/// type
///     that no setting has.
bool isHarmlessIni(const QByteArray& ini);
