#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace host {

using SettingsMap = QMap<QString, QVariant>;

/// Decodes a settings map from the text form in which QSettings stores a variant map, "@Variant(...)".
///
/// Only what an action's settings consist of is accepted: flags, numbers and texts. Decoding needs memory in
/// proportion to the text, whatever the text claims.
class StoredVariant
{
public:
    /// \returns none, and the reason in `problem`, when the text is not such a map, is cut off, has something
    /// left over, or holds a value of another type.
    static std::optional<SettingsMap> decodeMap(const QString& text, QString& problem);
};

/// A stored text as it was before QSettings marked a leading "@".
QString unmarkedText(const QString& text);

} // namespace host
