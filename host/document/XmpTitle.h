#pragma once

#include <QString>

#include <optional>

/// The title in XMP metadata, dc:title. Everything else of the packet stays as it is, character for
/// character: its other properties, white space and padding.
namespace host::xmptitle {

/// The title in the default language, else the first one, or the plain text; nothing where there is none or
/// the text is no XMP.
std::optional<QString> read(const QString& packet);

/// The packet with this title in the default language; titles in other languages stay. Of
/// several dc:title, which are not valid, one stays. An empty title takes dc:title away.
/// Nothing where the text is no XMP that can be changed.
std::optional<QString> write(const QString& packet, const QString& title);

/// Whether XML has a way to write the title: it has none for most control characters, U+FFFE and U+FFFF.
bool canBeWritten(const QString& title);

} // namespace host::xmptitle
