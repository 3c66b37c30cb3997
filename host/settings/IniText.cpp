#include "IniText.h"

namespace host {

namespace {

std::string_view trimmed(std::string_view text)
{
    const char* const spaces = " \t\r";
    const std::size_t first = text.find_first_not_of(spaces);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

int digitOf(char character, int base)
{
    const int digit = character >= '0' && character <= '9'   ? character - '0'
                      : character >= 'a' && character <= 'f' ? character - 'a' + 10
                      : character >= 'A' && character <= 'F' ? character - 'A' + 10
                                                             : base;
    return digit < base ? digit : -1;
}

/// Resolves the escapes of one value.
class Unescaper
{
public:
    explicit Unescaper(std::string_view text) : m_rest(text) {}

    std::optional<QString> run()
    {
        bool quoted = false;
        while (!m_rest.empty()) {
            const char character = take();
            if (character == '"')
                quoted = !quoted;
            else if (character == '\\' ? !takeEscape() : !quoted && (character == ',' || character == ';'))
                return std::nullopt;
            else if (character != '\\')
                m_result += QLatin1Char(character);
        }
        return quoted ? std::nullopt : std::optional(m_result);
    }

private:
    char take()
    {
        const char character = m_rest.front();
        m_rest.remove_prefix(1);
        return character;
    }

    bool takeEscape()
    {
        if (m_rest.empty())
            return false;
        static constexpr std::string_view letters = "abfnrtv\"?'\\";
        static constexpr std::string_view meanings = "\a\b\f\n\r\t\v\"?'\\";
        if (const auto at = letters.find(m_rest.front()); at != std::string_view::npos) {
            m_result += QLatin1Char(meanings[at]);
            m_rest.remove_prefix(1);
            return true;
        }
        const bool hexadecimal = m_rest.front() == 'x';
        if (hexadecimal)
            m_rest.remove_prefix(1);
        return takeNumber(hexadecimal ? 16 : 8);
    }

    bool takeNumber(int base)
    {
        unsigned number = 0;
        bool any = false;
        for (int digit; !m_rest.empty() && (digit = digitOf(m_rest.front(), base)) >= 0; any = true) {
            number = number * static_cast<unsigned>(base) + static_cast<unsigned>(digit);
            if (number > 0xffff)
                return false;
            m_rest.remove_prefix(1);
        }
        m_result += QChar(static_cast<ushort>(number));
        return any;
    }

    std::string_view m_rest;
    QString m_result;
};

} // namespace

IniText::IniText(std::string_view bytes)
{
    bool general = true;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        readLine(trimmed(bytes.substr(0, end)), general);
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
}

void IniText::readLine(std::string_view line, bool& general)
{
    if (line.empty() || line.front() == ';' || line.front() == '#')
        return;
    if (line.front() == '[') {
        general = line == "[General]";
        return;
    }
    const std::size_t equals = line.find('=');
    if (general && equals != std::string_view::npos)
        m_values[std::string(trimmed(line.substr(0, equals)))] = trimmed(line.substr(equals + 1));
}

std::optional<QString> IniText::text(const std::string& key) const
{
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::nullopt : Unescaper(found->second).run();
}

} // namespace host
