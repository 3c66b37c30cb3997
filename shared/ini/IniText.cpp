#include "IniText.h"

#include <QByteArrayList>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string_view>
#include <vector>

namespace initext {

namespace {

using Bytes = std::string_view;

const char byteOrderMark[] = "\xef\xbb\xbf";
const unsigned largestUnit = 0xffff;

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

/// -1 for what is no digit to the base.
int digitOf(char character, int base)
{
    const int digit = character >= '0' && character <= '9'   ? character - '0'
                      : character >= 'a' && character <= 'f' ? character - 'a' + 10
                      : character >= 'A' && character <= 'F' ? character - 'A' + 10
                                                             : base;
    return digit < base ? digit : -1;
}

Bytes trimmed(Bytes text)
{
    const char* const spaces = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(spaces);
    if (first == Bytes::npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

QString fromLatin1(Bytes text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

/// Splits a file into its lines. A line goes on behind an escaped line feed and within quotes; a semicolon
/// begins a comment.
class LineReader
{
public:
    explicit LineReader(Bytes bytes) : m_bytes(bytes) {}

    struct Line
    {
        Bytes text;
        /// Where the first "=" outside of quotes stands, or npos.
        std::size_t equals = Bytes::npos;
    };

    /// \returns false at the end.
    bool next(Line& line)
    {
        skipBlank();
        if (m_at == m_bytes.size())
            return false;
        const std::size_t start = m_at;
        line.equals = Bytes::npos;
        for (bool quoted = false; m_at < m_bytes.size() && !endsLine(quoted); ++m_at) {
            if (here() == '=' && !quoted && line.equals == Bytes::npos)
                line.equals = m_at - start;
            else if (here() == '"')
                quoted = !quoted;
            else if (here() == '\\')
                skipEscaped();
        }
        m_at = std::min(m_at, m_bytes.size());
        line.text = m_bytes.substr(start, m_at - start);
        return true;
    }

private:
    char here() const { return m_bytes[m_at]; }
    bool endsLine(bool quoted) const { return !quoted && (isLineEnd(here()) || here() == ';'); }

    void skipBlank()
    {
        while (m_at < m_bytes.size()) {
            if (here() == ';')
                m_at = std::min(m_bytes.find_first_of("\r\n", m_at), m_bytes.size());
            else if (isBlank(here()) || isLineEnd(here()))
                ++m_at;
            else
                return;
        }
    }

    /// Goes to the last of the escaped characters: a line may end in two.
    void skipEscaped()
    {
        const Bytes pair = m_bytes.substr(std::min(m_at + 1, m_bytes.size()), 2);
        m_at += pair == "\r\n" || pair == "\n\r" ? std::size_t{2} : std::size_t{1};
    }

    Bytes m_bytes;
    std::size_t m_at = 0;
};

/// Resolves the escapes of a key: "%41", "%U20AC", and "\" for "/".
QString keyOf(Bytes text)
{
    QString key;
    for (std::size_t at = 0; at < text.size();) {
        const bool isUnicode = text[at] == '%' && text.substr(at + 1, 1) == "U";
        const std::size_t digits = isUnicode ? 4 : 2;
        const std::size_t first = at + (isUnicode ? 2 : 1);
        bool isNumber = false;
        int number = 0;
        if (text[at] == '%' && first + digits <= text.size())
            number = QByteArray(text.data() + first, static_cast<int>(digits)).toInt(&isNumber, 16);
        if (isNumber)
            key += QChar(static_cast<ushort>(number));
        else
            key += text[at] == '\\' ? QLatin1Char('/') : QLatin1Char(text[at]);
        at = isNumber ? first + digits : at + 1;
    }
    return key;
}

/// The beginning of the keys in a section, from its line.
QString sectionOf(Bytes line)
{
    const Bytes name = trimmed(line.substr(1, line.find(']') - 1));
    const QString latin = fromLatin1(name);
    if (latin.compare("general", Qt::CaseInsensitive) == 0)
        return QString();
    if (latin.compare("%general", Qt::CaseInsensitive) == 0)
        return latin.mid(1) + "/";
    return keyOf(name) + "/";
}

/// Reads what stands behind "=".
class ValueReader
{
public:
    ValueReader(Bytes text, bool isUtf8) : m_rest(text), m_isUtf8(isUtf8) {}

    Value run()
    {
        skipBlank();
        while (!m_rest.empty())
            step();
        endText();
        m_value.isDamaged |= m_inQuotes;
        return m_value;
    }

private:
    void step()
    {
        if (m_rest.front() == '\\')
            escape();
        else if (m_rest.front() == '"')
            quote();
        else if (m_rest.front() == ',' && !m_inQuotes)
            comma();
        else
            plain();
    }

    char take()
    {
        const char character = m_rest.front();
        m_rest.remove_prefix(1);
        return character;
    }

    void skipBlank()
    {
        while (!m_rest.empty() && isBlank(m_rest.front()))
            m_rest.remove_prefix(1);
        m_kept = m_text.size();
    }

    void plain()
    {
        const std::size_t length = std::min(m_rest.find_first_of("\\\",", 1), m_rest.size());
        const Bytes run = m_rest.substr(0, length);
        m_text += m_isUtf8 ? QString::fromUtf8(run.data(), static_cast<int>(run.size())) : fromLatin1(run);
        m_rest.remove_prefix(length);
    }

    void quote()
    {
        take();
        m_wasQuoted = true;
        m_inQuotes = !m_inQuotes;
        if (!m_inQuotes)
            skipBlank();
    }

    void comma()
    {
        take();
        endText();
        m_value.isList = true;
        m_wasQuoted = false;
        skipBlank();
    }

    /// Spaces before a comma or the end count only where quotes or escapes keep them.
    void endText()
    {
        int size = m_text.size();
        while (!m_wasQuoted && size > m_kept && isBlank(m_text.at(size - 1).toLatin1()))
            --size;
        m_value.texts.append(m_text.left(size));
        m_text.clear();
    }

    void escape()
    {
        take();
        if (m_rest.empty()) { // the file ends; QSettings keeps spaces before it
            m_value.isDamaged = true;
            m_kept = m_text.size();
            return;
        }
        static constexpr Bytes letters = "abfnrtv\"?'\\";
        static constexpr Bytes meanings = "\a\b\f\n\r\t\v\"?'\\";
        const char character = take();
        if (const std::size_t at = letters.find(character); at != Bytes::npos)
            m_text += QLatin1Char(meanings[at]);
        else if (character == 'x')
            number(16, 0);
        else if (const int digit = digitOf(character, 8); digit >= 0)
            number(8, static_cast<unsigned>(digit));
        else
            lineEnd(character);
        m_kept = m_text.size();
    }

    void number(int base, unsigned value)
    {
        bool any = base == 8;
        bool fits = true;
        for (int digit; !m_rest.empty() && (digit = digitOf(m_rest.front(), base)) >= 0; any = true) {
            value = value * static_cast<unsigned>(base) + static_cast<unsigned>(digit);
            fits &= value <= largestUnit;
            value &= largestUnit;
            take();
        }
        if (any)
            m_text += QChar(static_cast<ushort>(value));
        m_value.isDamaged |= !any || !fits;
    }

    /// A line's end that is escaped means nothing, and no other character may be.
    void lineEnd(char character)
    {
        if (!isLineEnd(character))
            m_value.isDamaged = true;
        else if (!m_rest.empty() && isLineEnd(m_rest.front()) && m_rest.front() != character)
            take();
    }

    Bytes m_rest;
    bool m_isUtf8;
    Value m_value;
    QString m_text = ""; // empty, not null, as QSettings has it
    int m_kept = 0;      // of the text, what is not chopped at its end
    bool m_inQuotes = false;
    bool m_wasQuoted = false;
};

struct Entry
{
    QString section;
    QString key;
    Value value;
};

const char hexDigits[] = "0123456789ABCDEF";

QByteArray escapedKey(const QString& key)
{
    QByteArray result;
    for (const QChar character : key) {
        const ushort unit = character.unicode();
        const bool isPlain = unit < 0x80 && (std::isalnum(unit) != 0 || std::strchr("_-.", unit) != nullptr);
        if (unit == '/')
            result += '\\';
        else if (unit != 0 && isPlain)
            result += static_cast<char>(unit);
        else if (unit <= 0xff)
            result.append('%').append(hexDigits[unit / 16]).append(hexDigits[unit % 16]);
        else
            result += "%U" + QByteArray::number(unit, 16).rightJustified(4, '0').toUpper();
    }
    if (result.endsWith(
            '\\')) // it would take the meaning from the "=" behind it, and the line would mean nothing
        result.replace(result.size() - 1, 1, "%2F");
    return result;
}

/// Stands for the section "[]", whose keys begin with a slash.
const QString namelessSection = "/";

QByteArray sectionLine(const QString& section)
{
    if (section.isEmpty())
        return "[General]\n";
    if (section == namelessSection)
        return "[]\n";
    const QByteArray name = escapedKey(section);
    return (name.compare("general", Qt::CaseInsensitive) == 0 ? "[%" : "[") + name + "]\n";
}

QByteArray escapedText(const QString& text)
{
    QByteArray result;
    bool afterNumber = false; // where a digit would count as part of the number
    for (const QChar character : text) {
        const ushort unit = character.unicode();
        static const char special[] = "\a\b\f\n\r\t\v\"\\";
        static const char letters[] = "abfnrtv\"\\";
        const char* const found =
            unit == 0 || unit > 0x7f ? nullptr : std::strchr(special, static_cast<char>(unit));
        const bool isDigit = unit < 0x80 && digitOf(static_cast<char>(unit), 16) >= 0;
        if (afterNumber && isDigit) {
            result += "\\x" + QByteArray::number(unit, 16);
            continue;
        }
        afterNumber = found == nullptr && (unit < 0x20 || unit >= 0x7f);
        if (found != nullptr)
            result.append('\\').append(letters[found - special]);
        else if (unit == 0)
            result += "\\0";
        else if (afterNumber)
            result += "\\x" + QByteArray::number(unit, 16);
        else
            result += static_cast<char>(unit);
    }
    const bool needsQuotes = result.startsWith(' ') || result.endsWith(' ') ||
                             std::any_of(text.begin(), text.end(), [](QChar each) {
                                 return each == ';' || each == ',' || each == '=';
                             });
    return needsQuotes ? "\"" + result + "\"" : result;
}

QByteArray escapedValue(const Value& value)
{
    QByteArrayList texts;
    for (const QString& text : value.texts)
        texts.append(escapedText(text));
    return texts.join(", ");
}

} // namespace

Values parse(const QByteArray& bytes)
{
    const bool isUtf8 = bytes.startsWith(byteOrderMark);
    const Bytes all(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    LineReader lines(all.substr(isUtf8 ? std::strlen(byteOrderMark) : 0));
    std::vector<Entry> entries;
    QString section;
    for (LineReader::Line line; lines.next(line);) {
        if (line.text.front() == '[') {
            section = sectionOf(line.text);
        } else if (line.equals != Bytes::npos) {
            Bytes key = line.text.substr(0, line.equals);
            while (!key.empty() && isBlank(key.back()))
                key.remove_suffix(1);
            entries.push_back({section, section + keyOf(key),
                               ValueReader(line.text.substr(line.equals + 1), isUtf8).run()});
        }
    }
    // QSettings goes through the sections by name, and the last one that has a key wins.
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.section < b.section; });
    Values values;
    for (const Entry& entry : entries)
        values[entry.key] = entry.value;
    return values;
}

QByteArray format(const Values& values)
{
    QMap<QString, QMap<QString, const Value*>> sections;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const int slash = it.key().indexOf('/');
        const QString section = slash == 0 ? namelessSection : it.key().left(std::max(slash, 0));
        sections[section][it.key().mid(slash + 1)] = &it.value();
    }
    QByteArray bytes;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        bytes += (bytes.isEmpty() ? "" : "\n") + sectionLine(section.key());
        for (auto entry = section->cbegin(); entry != section->cend(); ++entry)
            bytes += escapedKey(entry.key()) + "=" + escapedValue(*entry.value()) + "\n";
    }
    return bytes;
}

QString normalizedKey(const QString& key)
{
    return key.split('/', Qt::SkipEmptyParts).join('/');
}

} // namespace initext
