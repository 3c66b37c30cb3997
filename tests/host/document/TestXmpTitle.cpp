#include "host/document/XmpTitle.h"
#include "support/Rows.h"

using namespace host;

namespace {

const QString begin =
    QString::fromUtf8("<?xpacket begin=\"\xef\xbb\xbf\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\r\n"
                      "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
                      " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n");
const QString end = " </rdf:RDF>\n</x:xmpmeta>\n" + QString(200, ' ') + "\n<?xpacket end=\"w\"?>";
const QString other = "  <rdf:Description  rdf:about='uuid:1' xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\"\r\n"
                      "     pdf:Producer=\"A &amp; B\"><!-- kept --><pdf:Keywords>\xf0\x9f\x98\x80 "
                      "\xc3\xa4</pdf:Keywords></rdf:Description>\n";

/// A description with a dc:title of this content.
QString described(const QString& title)
{
    return other +
           "  <rdf:Description rdf:about=\"uuid:1\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">\n   "
           "<dc:title>" +
           title + "</dc:title>\n   <dc:format>application/pdf</dc:format>\n  </rdf:Description>\n";
}

/// A part that the document is made of, with a title of its own.
const QString part =
    "<rdf:Description xmlns:dc=\"http://purl.org/dc/elements/1.1/\" xmlns:p=\"urn:p\"><p:parts>"
    "<rdf:Description><dc:title>Part</dc:title></rdf:Description></p:parts></rdf:Description>";

QString packet(const QString& descriptions)
{
    return begin + descriptions + end;
}

QString item(const QString& language, const QString& text)
{
    return "<rdf:li xml:lang=\"" + language + "\">" + text + "</rdf:li>";
}

/// How much two texts have in common at their begin and at their end.
std::pair<int, int> inCommon(const QString& one, const QString& two)
{
    int first = 0;
    const int shorter = std::min(one.size(), two.size());
    while (first < shorter && one[first] == two[first])
        ++first;
    int last = 0;
    while (last < shorter - first && one[one.size() - 1 - last] == two[two.size() - 1 - last])
        ++last;
    return {first, last};
}

} // namespace

class TestXmpTitle : public QObject
{
    Q_OBJECT

private slots:
    /// A packet, its title, and where the changed part begins and ends in it.
    void changesTheTitleAlone_data()
    {
        const Rows<QString, QString, QString> row;
        row("default language", described("<rdf:Alt>" + item("x-default", "Old &lt;&amp;") + "</rdf:Alt>"),
            "Old <&", item("x-default", "Old &lt;&amp;"));
        row("several languages",
            described("<rdf:Alt>\n" + item("de", "Alt") + item("x-default", "Old") + item("fr", "Vieux") +
                      "</rdf:Alt>"),
            "Old", item("x-default", "Old"));
        row("no default language",
            described("<rdf:Alt>" + item("de", "Alt") + item("fr", "Vieux") + "</rdf:Alt>"), "Alt",
            item("de", "Alt"));
        row("empty item", described("<rdf:Alt><rdf:li xml:lang=\"x-default\"/></rdf:Alt>"), "",
            "<rdf:li xml:lang=\"x-default\"/>");
        row("plain text", described("Old &lt;"), "Old <", "<dc:title>Old &lt;</dc:title>");
        row("blanks", described(" \n "), QString(), "<dc:title> \n </dc:title>");
        row("of a part alone", other + part, QString(), "");
        row("of a part first", other + part + described("Old"), "Old", "<dc:title>Old</dc:title>");
        row("none", other, QString(), "");
    }

    void changesTheTitleAlone()
    {
        const auto [descriptions, title, replaced] = Rows<QString, QString, QString>::current();
        const QString before = packet(descriptions);
        QCOMPARE(xmptitle::read(before).value_or(QString()), title);
        QCOMPARE(xmptitle::read(before).has_value(), !title.isNull());
        const QString wanted = QString::fromUtf8("New <title> & \xe2\x82\xac \"quoted\"");
        const QString after = xmptitle::write(before, wanted).value_or("unchanged");
        QVERIFY2(xmptitle::read(after) == wanted, qPrintable(after));
        const auto [first, last] = inCommon(before, after);
        QVERIFY2(before.size() - first - last <= replaced.size(), qPrintable(after));
        QVERIFY(replaced.isEmpty() ||
                before.mid(first, before.size() - first - last).size() <= replaced.size());
        QCOMPARE(xmptitle::write(after, wanted).value_or("unchanged"), after);
    }

    void newTitlesAreAboutTheSame()
    {
        const QString after = xmptitle::write(packet(other), "New").value_or("");
        QVERIFY2(after.contains("rdf:about=\"uuid:1\"><dc:title"), qPrintable(after));
    }

    void takesTheTitleAway()
    {
        const QString before = packet(described("<rdf:Alt>" + item("x-default", "Old") + "</rdf:Alt>"));
        const QString after = xmptitle::write(before, "").value_or("unchanged");
        QVERIFY(!after.contains("title") && after.contains("application/pdf"));
        QCOMPARE(xmptitle::write(packet(other), "").value_or(""), packet(other));
        // Of two, which there must not be, none is left, or one.
        const QString two = packet(described("") + described("Old"));
        QVERIFY(xmptitle::read(two) == QString("Old"));
        QVERIFY(!xmptitle::write(two, "").value_or("title").contains("title"));
        QCOMPARE(xmptitle::write(two, "New").value_or("").count("<dc:title"), 1);
    }

    void leavesAloneWhatItCannotRead_data()
    {
        const Rows<QString> row;
        row("empty", "");
        row("no XML", "title");
        row("no RDF", "<x/>");
        row("no content", "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"/>");
        row("entities", "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\">]>" + packet(described("&a;")));
        row("cut off", packet(described("Old")).left(500));
        row("title as an attribute",
            packet("<rdf:Description xmlns:dc=\"http://purl.org/dc/elements/1.1/\" dc:title=\"Old\"/>"));
        row("entities that grow",
            "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
            "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;\">]>" +
                packet(described("&d;")));
    }

    void leavesAloneWhatItCannotRead()
    {
        const auto [text] = Rows<QString>::current();
        QVERIFY(!xmptitle::read(text));
        QVERIFY(!xmptitle::write(text, "New"));
    }

    void refusesTextsThatXmlCannotHold()
    {
        for (const QChar each : {QChar(7), QChar(0xfffe), QChar(0xffff), QChar(0xd800)})
            QVERIFY(!xmptitle::write(packet(other), QString("a") + each));
    }
};

QTEST_GUILESS_MAIN(TestXmpTitle)
#include "TestXmpTitle.moc"
