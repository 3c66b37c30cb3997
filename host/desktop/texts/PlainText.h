#pragma once

#include <QString>

/// Words that others chose, as titles, names and reasons, on their way to where a person reads them.
namespace host::desktop::plaintext {

/// For tool tips, which take for markup what looks like it.
QString tip(const QString& text);

/// Characters that control, reorder or hide what stands around them appear as escapes, as in reports: \u202e.
QString shown(const QString& text);

} // namespace host::desktop::plaintext
