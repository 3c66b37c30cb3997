#include "XmpTitle.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <vector>

namespace host::xmptitle {

namespace {

const QString rdf = QStringLiteral("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
const QString dublinCore = QStringLiteral("http://purl.org/dc/elements/1.1/");
const QString xml = QStringLiteral("http://www.w3.org/XML/1998/namespace");
const QString defaultLanguage = QStringLiteral("x-default");

/// A part of the packet.
struct Span
{
    int begin = -1;
    int end = -1;

    bool isFound() const { return begin >= 0; }
};

/// Where the title stands in a packet, or where one can be put.
class Packet
{
public:
    explicit Packet(const QString& text) : m_reader(text)
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            const int end = static_cast<int>(m_reader.characterOffset());
            // The reader's offset is exact behind tags only: behind text it may lie within the next tag.
            m_token = {text.lastIndexOf('<', end - 1), end};
            if (m_reader.isStartElement())
                startElement();
            else if (m_reader.isEndElement())
                endElement(text.midRef(m_token.begin, 2) == QLatin1String("</"));
            else if (m_reader.isDTD())
                m_odd = true; // behind entities that it declares no offset is exact
            else if (m_reader.isCharacters() && (m_inItem || m_depth == m_titleDepth))
                m_text += m_reader.text();
        }
    }

    /// Whether it can be read to its end, has a place for a title, and holds nothing that cannot be changed.
    bool isUsable() const { return !m_reader.hasError() && m_rdfEnd >= 0 && !m_odd; }

    /// Each dc:title of the document with its tags, and which of them counts.
    const std::vector<Span>& titles() const { return m_titles; }
    std::size_t countingTitle() const { return m_countingTitle; }
    bool hasText() const { return !m_itemText.isNull(); }
    /// The item that counts, with its tags; not found where the title is plain text.
    Span item() const { return m_item; }
    QString language() const { return m_language; }
    QString text() const { return m_itemText; }
    /// What the packet is about, the same in each of its descriptions.
    QString about() const { return m_about; }
    /// Where rdf:RDF ends, before its end tag.
    int rdfEnd() const { return m_rdfEnd; }

private:
    bool isAt(const QString& space, const char* name) const
    {
        return m_reader.namespaceUri() == space && m_reader.name() == QLatin1String(name);
    }

    void startElement()
    {
        ++m_depth;
        const QXmlStreamAttributes attributes = m_reader.attributes();
        m_odd = m_odd || attributes.hasAttribute(dublinCore, "title");
        if (isAt(rdf, "Description") && m_about.isEmpty())
            m_about = attributes.value(rdf, "about").toString();
        if (isAt(rdf, "RDF") && m_rdfDepth == 0)
            m_rdfDepth = m_depth;
        m_isPlain = false;
        // Deeper ones are of what the document is made of.
        if (isAt(dublinCore, "title") && m_rdfDepth > 0 && m_depth == m_rdfDepth + 2) {
            m_titles.push_back({m_token.begin, -1});
            m_titleDepth = m_depth;
            m_isPlain = true;
            m_text.clear();
        } else if (m_titleDepth > 0 && isAt(rdf, "li")) {
            m_inItem = true;
            m_text.clear();
            m_itemBegin = m_token.begin;
            m_itemLanguage = attributes.value(xml, "lang").toString();
        }
    }

    /// \param hasTag false for the end of an element without content.
    void endElement(bool hasTag)
    {
        if (m_inItem && isAt(rdf, "li"))
            endItem();
        else if (m_titleDepth == m_depth)
            endTitle();
        else if (isAt(rdf, "RDF") && hasTag)
            m_rdfEnd = m_token.begin;
        --m_depth;
    }

    void endTitle()
    {
        m_titles.back().end = m_token.end;
        m_titleDepth = 0;
        if (m_isPlain && !hasText() && !m_text.trimmed().isEmpty()) {
            m_countingTitle = m_titles.size() - 1;
            m_itemText = m_text;
        }
    }

    /// The first title with an item counts, and in it the first item until one in the default language is met.
    void endItem()
    {
        m_inItem = false;
        const std::size_t title = m_titles.size() - 1;
        if (hasText() &&
            (title != m_countingTitle || m_language == defaultLanguage || m_itemLanguage != defaultLanguage))
            return;
        m_countingTitle = title;
        m_item = {m_itemBegin, m_token.end};
        m_language = m_itemLanguage;
        m_itemText = m_text.isNull() ? QString("") : m_text;
    }

    QXmlStreamReader m_reader;
    Span m_token;
    int m_depth = 0;
    int m_rdfDepth = 0; ///< Of rdf:RDF once it was met.
    std::vector<Span> m_titles;
    std::size_t m_countingTitle = 0;
    int m_titleDepth = 0;   ///< Of dc:title while the reader is in it, else 0.
    bool m_isPlain = false; ///< It has no element in it so far.
    bool m_odd = false;     ///< Holds what cannot be changed.
    bool m_inItem = false;
    int m_itemBegin = 0;
    QString m_itemLanguage;
    QString m_text;
    Span m_item;
    QString m_language;
    QString m_itemText;
    QString m_about;
    int m_rdfEnd = -1;
};

void writeItem(QXmlStreamWriter& writer, const QString& language, const QString& title)
{
    writer.writeStartElement(rdf, "li");
    if (!language.isEmpty())
        writer.writeAttribute(xml, "lang", language);
    writer.writeCharacters(title);
    writer.writeEndElement();
}

/// \param write what the writer is to write; it declares the namespaces that it uses.
template <class Write>
QString fragment(const Write& write)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeNamespace(rdf, "rdf");
    writer.writeNamespace(dublinCore, "dc");
    write(writer);
    return text;
}

QString itemFragment(const QString& language, const QString& title)
{
    return fragment([&](QXmlStreamWriter& writer) { writeItem(writer, language, title); });
}

void writeTitle(QXmlStreamWriter& writer, const QString& title)
{
    writer.writeStartElement(dublinCore, "title");
    writer.writeStartElement(rdf, "Alt");
    writeItem(writer, defaultLanguage, title);
    writer.writeEndElement();
    writer.writeEndElement();
}

QString titleFragment(const QString& title)
{
    return fragment([&](QXmlStreamWriter& writer) { writeTitle(writer, title); });
}

/// A description of its own: where dc:title fits into another one depends on how that is written.
QString descriptionFragment(const QString& about, const QString& title)
{
    return fragment([&](QXmlStreamWriter& writer) {
        writer.writeStartElement(rdf, "Description");
        writer.writeAttribute(rdf, "about", about);
        writeTitle(writer, title);
        writer.writeEndElement();
    });
}

QString replaced(const QString& packet, const Span& span, const QString& text)
{
    return packet.left(span.begin) + text + packet.mid(span.end);
}

} // namespace

bool canBeWritten(const QString& title)
{
    return title.isValidUtf16() && std::all_of(title.begin(), title.end(), [](QChar each) {
               return (each.unicode() >= 0x20 && each.unicode() < 0xfffe) || each == '\t' || each == '\n' ||
                      each == '\r';
           });
}

std::optional<QString> read(const QString& packet)
{
    const Packet parsed(packet);
    return parsed.isUsable() && parsed.hasText() ? std::optional(parsed.text()) : std::nullopt;
}

std::optional<QString> write(const QString& packet, const QString& title)
{
    const Packet parsed(packet);
    if (!parsed.isUsable() || !canBeWritten(title))
        return std::nullopt;
    if (parsed.hasText() && !title.isEmpty() && parsed.text() == title)
        return packet;
    QString text = packet;
    const std::vector<Span>& titles = parsed.titles();
    if (titles.empty() && !title.isEmpty())
        return replaced(text, {parsed.rdfEnd(), parsed.rdfEnd()}, descriptionFragment(parsed.about(), title));
    for (std::size_t place = titles.size(); place-- > 0;) // from behind, so that the spans stay right
        if (place != parsed.countingTitle() || title.isEmpty())
            text = replaced(text, titles[place], {});
        else if (parsed.item().isFound())
            text = replaced(text, parsed.item(), itemFragment(parsed.language(), title));
        else
            text = replaced(text, titles[place], titleFragment(title));
    return text;
}

} // namespace host::xmptitle
