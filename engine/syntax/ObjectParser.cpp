#include "ObjectParser.h"

#include "SyntaxScanner.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace engine {

namespace {

const int deepestNesting = 100;

/// Every function returns nothing at the first unusual thing.
class ObjectParser
{
public:
    ObjectParser(QPDF& pdf, std::string_view text) : m_pdf(pdf), m_text(text), m_scanner(text) {}

    std::optional<QPDFObjectHandle> parse()
    {
        auto object = value(0);
        m_scanner.skipSpace();
        return m_scanner.atEnd() ? object : std::nullopt;
    }

private:
    using Object = std::optional<QPDFObjectHandle>;

    std::string_view rest() const { return m_text.substr(m_scanner.position()); }
    void skip(std::size_t count) { m_scanner = SyntaxScanner(m_text, m_scanner.position() + count); }

    /// The text of a token as the scanner sees it.
    std::string_view token()
    {
        const std::size_t start = m_scanner.position();
        const bool complete = m_scanner.skipValue() == SyntaxScanner::Outcome::Complete;
        return complete ? m_text.substr(start, m_scanner.position() - start) : std::string_view();
    }

    Object value(int depth)
    {
        m_scanner.skipSpace();
        const std::string_view text = rest();
        if (text.empty() || depth > deepestNesting)
            return std::nullopt;
        switch (text.front()) {
        case '/':
            return name();
        case '[':
            return array(depth);
        case '<':
            return text.starts_with("<<") ? dictionary(depth) : hexString();
        case '(':
            return literalString();
        default:
            return numberOrWord();
        }
    }

    Object name()
    {
        const std::string_view text = token();
        if (text.size() < 2 || text.find('#') != text.npos)
            return std::nullopt;
        return QPDFObjectHandle::newName(std::string(text));
    }

    Object array(int depth)
    {
        skip(1);
        std::vector<QPDFObjectHandle> items;
        for (m_scanner.skipSpace(); !rest().starts_with(']'); m_scanner.skipSpace()) {
            auto item = value(depth + 1);
            if (!item)
                return std::nullopt;
            items.push_back(std::move(*item));
        }
        skip(1);
        return QPDFObjectHandle::newArray(items);
    }

    Object dictionary(int depth)
    {
        skip(2);
        std::map<std::string, QPDFObjectHandle> entries;
        for (m_scanner.skipSpace(); !rest().starts_with(">>"); m_scanner.skipSpace()) {
            const std::string_view key = token();
            if (key.size() < 2 || key.front() != '/' || key.find('#') != key.npos)
                return std::nullopt;
            auto item = value(depth + 1);
            if (!item || (!item->isIndirect() && item->isNull()) ||
                !entries.emplace(key, std::move(*item)).second)
                return std::nullopt;
        }
        skip(2);
        return QPDFObjectHandle::newDictionary(entries);
    }

    Object literalString()
    {
        const std::string_view text = token();
        if (text.size() < 2 || text.find_first_of("\\\r") != text.npos)
            return std::nullopt;
        return QPDFObjectHandle::newString(std::string(text.substr(1, text.size() - 2)));
    }

    Object hexString()
    {
        const std::string_view text = token();
        if (text.size() < 2 || text.size() % 2 != 0)
            return std::nullopt;
        std::string bytes;
        for (const char character : text.substr(1, text.size() - 2)) {
            const std::size_t digit = std::string_view("0123456789abcdef0123456789ABCDEF").find(character);
            if (digit == std::string_view::npos)
                return std::nullopt;
            bytes.push_back(static_cast<char>(digit % 16));
        }
        for (std::size_t index = 0; index < bytes.size(); index += 2)
            bytes[index / 2] = static_cast<char>(bytes[index] << 4 | bytes[index + 1]);
        bytes.resize(bytes.size() / 2);
        return QPDFObjectHandle::newString(bytes);
    }

    Object numberOrWord()
    {
        SyntaxScanner ahead = m_scanner;
        if (const auto id = ahead.reference()) {
            m_scanner = ahead;
            return m_pdf.getObject(id->number, id->generation);
        }
        if (const auto number = m_scanner.integer())
            return QPDFObjectHandle::newInteger(*number);
        const std::string_view text = token();
        if (text == "true" || text == "false")
            return QPDFObjectHandle::newBool(text == "true");
        if (text == "null")
            return QPDFObjectHandle::newNull();
        if (const auto number = text.starts_with('-') ? wholeInteger(text.substr(1)) : std::nullopt)
            return QPDFObjectHandle::newInteger(-*number);
        return isPlainReal(text) ? Object(QPDFObjectHandle::newReal(std::string(text))) : std::nullopt;
    }

    /// Digits on both sides of a point.
    static bool isPlainReal(std::string_view text)
    {
        if (text.starts_with('-'))
            text.remove_prefix(1);
        const std::size_t point = text.find('.');
        const std::string_view digits = "0123456789";
        return point != text.npos && point > 0 && point + 1 < text.size() &&
               text.find_first_not_of(digits) == point &&
               text.find_first_not_of(digits, point + 1) == text.npos;
    }

    QPDF& m_pdf;
    std::string_view m_text;
    SyntaxScanner m_scanner;
};

} // namespace

QPDFObjectHandle parseObject(QPDF& pdf, std::string_view text)
{
    const auto object = ObjectParser(pdf, text).parse();
    return object ? *object : QPDFObjectHandle::parse(&pdf, std::string(text));
}

} // namespace engine
