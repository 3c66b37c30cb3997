#pragma once

#include "pdflibrary/Wipe.h"

#include <optional>
#include <string>
#include <string_view>

namespace host {

class OptionParser;

/// The options that name the password which opens documents: --password and --password-file.
class PasswordOptions
{
public:
    /// The object must outlive the parser. A password is taken out of the argument that it stands in.
    void take(OptionParser& parser);
    /// Throws UsageError.
    void check() const;
    /// Reads the password's file, if there is one. Throws UsageError.
    void read();

    /// Empty for none. The object keeps it.
    std::string_view password() const { return m_password.text; }
    /// The file that it comes from, "-" for standard input; nothing for none.
    const std::optional<std::string>& file() const { return m_file; }

private:
    void takeFrom(char* argument);

    bool m_isGiven = false;
    std::optional<std::string> m_file;
    engine::Wiped<char> m_password;
};

} // namespace host
