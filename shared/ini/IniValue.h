#pragma once

#include "IniText.h"

#include <QVariant>

#include <optional>

/// What the texts behind a key mean to QSettings: "@Variant(...)", "@ByteArray(...)", "@Rect(...)", lists.
namespace inivalue {

/// \param[out] problem why there is none, in words that follow "it": "is cut off".
/// \returns what QSettings would give, without its dangers (see VariantBytes): none for a stored variant that
///     is damaged.
std::optional<QVariant> decoded(const initext::Value& value, QString& problem);

/// \param[out] problem why there is none, in words that follow "it".
/// \returns what QSettings would write; none for a value that it could not read again: a type that has no
///     stored form, such as a pointer, or containers more than 64 deep.
std::optional<initext::Value> encoded(const QVariant& value, QString& problem);

} // namespace inivalue
