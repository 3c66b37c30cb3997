#pragma once

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// The top-level keys of an INI file as QSettings writes it.
///
/// QSettings itself would decode every value of a file on the first access, pictures and any other type that
/// a stream can name included. Settings files come from other people, so this class hands out texts, and the
/// few values that are wanted are decoded by StoredVariant.
class IniText
{
public:
    explicit IniText(std::string_view bytes);

    /// Every key of the top level ("General") with its value as it is written.
    const std::map<std::string, std::string>& values() const { return m_values; }

    /// The text of a value, escapes and quotes resolved. None when the key is absent or its value is a list
    /// or damaged.
    std::optional<QString> text(const std::string& key) const;

private:
    void readLine(std::string_view line, bool& general);

    std::map<std::string, std::string> m_values;
};

} // namespace host
