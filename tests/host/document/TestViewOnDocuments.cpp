// What a change of one entry does to documents, read by libqpdf: the entry is as asked, and no other object or
// entry differs.
#include "host/change/ViewJson.h"
#include "host/document/ViewChanger.h"
#include "host/document/XmpTitle.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/ViewerPreferences.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/Rewritten.h"
#include "support/engine/LoadedLibrary.h"

#include <QJsonDocument>

#include <qpdf/Buffer.hh>

using namespace host;

namespace {

using Names = std::map<QPDFObjGen, QByteArray>;

const char* const everyPreference =
    "<< /HideToolbar false /HideMenubar false /HideWindowUI false /FitWindow true /CenterWindow false "
    "/DisplayDocTitle false /NonFullScreenPageMode /UseOC /Direction /L2R /PrintScaling /AppDefault /Duplex "
    "/Simplex /PickTrayByPDFSize false /NumCopies 2 /PrintPageRange [1 2] /Foo (bar) >>";

const char* const packet =
    "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
    "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:title><rdf:Alt>"
    "<rdf:li xml:lang='x-default'>Old</rdf:li></rdf:Alt></dc:title></rdf:Description></rdf:RDF></x:xmpmeta>";

PdfBuilder builder(const std::string& preferences, const std::string& catalog = "")
{
    PdfBuilder pdf;
    pdf.catalog("/PageMode /UseThumbs /PageLayout /OneColumn /OpenAction [3 0 R /XYZ 10 null 1.5] /Lang (de) "
                "/Metadata 8 0 R /PieceInfo << /A << /B [1.50 (x) 10 0 R] >> >> /ViewerPreferences " +
                preferences + " " + catalog)
        .pages(3, 3, "/Contents 7 0 R")
        .stream(7, "", "0 0 m")
        .stream(8, "/Type /Metadata /Subtype /XML /Foo (bar)", packet)
        .object(9, "<< /Title (Old) /Author (A) >>")
        .object(10, "(of its own)")
        .trailer("/Info 9 0 R /ID [(first) (second)]");
    return pdf;
}

const std::string signature = "/AcroForm << /Fields [20 0 R] /SigFlags 3 >>";

std::string signedDocument()
{
    return builder(everyPreference, signature)
        .object(20, "<< /FT /Sig /T (s) /V 21 0 R >>")
        .object(21, "<< /Type /Sig /ByteRange [0 10 20 30] /Contents <00ff> >>")
        .bytes();
}

void open(QPDF& pdf, const std::string& bytes)
{
    pdf.setSuppressWarnings(true);
    pdf.processMemoryFile("document", bytes.data(), bytes.size());
}

Names namesOf(QPDF& pdf)
{
    QPDFObjectHandle root = pdf.getRoot();
    Names names{{root.getObjGen(), "catalog"}, {pdf.getTrailer().getKey("/Info").getObjGen(), "info"}};
    names[root.getKey("/ViewerPreferences").getObjGen()] = "preferences";
    names[root.getKey("/Metadata").getObjGen()] = "metadata";
    return names;
}

void compare(const QByteArray& place, QPDFObjectHandle before, QPDFObjectHandle after, QByteArrayList& found)
{
    const bool nested = (before.isDictionary() || before.isNull()) && after.isDictionary() &&
                        !after.isIndirect() && !before.isIndirect();
    if (!nested) {
        if (before.unparse() != after.unparse())
            found << place;
        return;
    }
    std::set<std::string> keys = after.getKeys();
    if (before.isDictionary())
        keys.merge(before.getKeys());
    for (const std::string& key : keys)
        compare(place + QByteArray::fromStdString(key), before.isNull() ? before : before.getKey(key),
                after.getKey(key), found);
}

/// An object by itself: what its references lead to is compared on its own.
void compareObject(const QByteArray& name, QPDFObjectHandle before, QPDFObjectHandle after,
                   QByteArrayList& found)
{
    if (before.isStream() && after.isStream()) {
        const auto one = before.getStreamData(qpdf_dl_all);
        const auto other = after.getStreamData(qpdf_dl_all);
        const bool same = one->getSize() == other->getSize() &&
                          memcmp(one->getBuffer(), other->getBuffer(), one->getSize()) == 0;
        if (!same)
            found << name;
        before = before.getDict().shallowCopy();
        after = after.getDict().shallowCopy();
        for (const char* key : {"/Length", "/Filter", "/DecodeParms"}) {
            (same ? after : before).replaceKey(key, (same ? before : after).getKey(key));
        }
    }
    if (before.isDictionary() && after.isDictionary())
        compare(name, before.shallowCopy(), after.shallowCopy(), found);
    else if (before.unparseResolved() != after.unparseResolved())
        found << name;
}

bool isOfTheFile(QPDFObjectHandle object)
{
    return object.isStreamOfType("/XRef") || object.isStreamOfType("/ObjStm");
}

/// Every object and entry in which two documents differ.
QByteArrayList differences(QPDF& before, QPDF& after)
{
    QByteArrayList found;
    Names names = namesOf(before);
    std::set<QPDFObjGen> all;
    for (QPDF* pdf : {&before, &after})
        for (const auto& [id, entry] : pdf->getXRefTable())
            if (!isOfTheFile(pdf->getObject(id)))
                all.insert(id);
    for (const QPDFObjGen& id : all) {
        const QByteArray number = QByteArray::fromStdString(id.unparse());
        compareObject(names.contains(id) ? names[id] : number, before.getObject(id), after.getObject(id),
                      found);
    }
    for (const char* key : {"/Root", "/Info", "/Encrypt"})
        if (before.getTrailer().getKey(key).unparse() != after.getTrailer().getKey(key).unparse())
            found << QByteArray("trailer") + key;
    std::sort(found.begin(), found.end());
    return found;
}

/// The document with the change appended; the document itself when nothing was to be changed.
std::string changed(const std::string& bytes, const QByteArray& json, const QTemporaryDir& folder)
{
    LoadedLibrary library;
    library.LoadFromString(bytes, L"");
    const ViewChange change = viewjson::parse(QJsonDocument::fromJson(json).object());
    if (std::string problem = ViewChanger(library, change).apply("name.pdf").text; !problem.empty())
        return problem;
    const std::wstring path = folder.filePath("changed.pdf").toStdWString();
    if (library.SecurityInfo(103) == 0)
        return bytes;
    if (library.AppendToFile(path) == 0)
        return "not appended: " + std::to_string(library.LastErrorCode());
    QFile file(folder.filePath("changed.pdf"));
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
}

struct Entry
{
    QByteArray json;
    QByteArrayList places; ///< Everything that may differ.
    QByteArray value;      ///< Of the first place; "null" for none.
    bool isPreference = false;
};

std::vector<Entry> preferences()
{
    std::vector<Entry> all;
    const auto add = [&](const QByteArray& key, const QByteArray& json, const QByteArray& value) {
        all.push_back({R"({"viewerPreferences":{")" + key + "\":" + json + "}}", {"/" + key}, value, true});
    };
    const auto addName = [&](const char* key, const QByteArray& name) {
        add(key, "\"" + name + "\"", "/" + name);
    };
    const QByteArray present = everyPreference;
    for (const pdflibrary::PreferenceRow& row : pdflibrary::allPreferences) {
        const QByteArray name = row.pdfName;
        const QByteArray other = row.isNumber ? "3" : present.contains(name + " true") ? "false" : "true";
        if (row.names.empty())
            add(row.pdfName + 1, other, other);
        for (const char* each : row.names)
            if (*each != '\0' && !present.contains(name + ' ' + each))
                addName(row.pdfName + 1, each + 1);
        add(row.pdfName + 1, "null", "null");
    }
    return all;
}

std::vector<Entry> entries()
{
    std::vector<Entry> all = preferences();
    const auto add = [&](const QByteArray& json, const char* key, const QByteArray& value) {
        all.push_back({"{" + json + "}", {QByteArray("catalog") + key}, value});
    };
    const auto addName = [&](const QByteArray& json, const char* key, const QByteArray& name) {
        add("\"" + json + "\":\"" + name + "\"", key, "/" + name);
    };
    for (const char* mode : {"UseNone", "UseOutlines", "FullScreen", "UseOC", "UseAttachments"})
        addName("pageMode", "/PageMode", mode);
    add(R"("pageMode":null)", "/PageMode", "null");
    for (const char* layout :
         {"SinglePage", "TwoColumnLeft", "TwoColumnRight", "TwoPageLeft", "TwoPageRight"})
        addName("pageLayout", "/PageLayout", layout);
    add(R"("pageLayout":null)", "/PageLayout", "null");
    add(R"("openAction":null)", "/OpenAction", "null");
    add(R"("openAction":{"zoom":8.33})", "/OpenAction", "[ PAGE1 /XYZ 10 null 0.0833 ]");
    add(R"("openAction":{"page":"last"})", "/OpenAction", "[ PAGE3 /XYZ 0 792 1.5 ]");
    add(R"("openAction":{"type":"Fit"})", "/OpenAction", "[ PAGE1 /Fit ]");
    add(R"("lang":"en-GB")", "/Lang", "(en-GB)");
    add(R"("lang":null)", "/Lang", "null");
    all.push_back({R"({"title":"N\u00e9w"})", {"info/Title", "metadata"}, "<4ee977>"});
    all.push_back({R"({"title":null})", {"info/Title", "metadata"}, "null"});
    return all;
}

/// Page numbers for the references of this document.
QByteArray inDocument(QByteArray value, QPDF& pdf)
{
    const auto pages = pdf.getAllPages();
    for (std::size_t page = 0; page < pages.size(); ++page)
        value.replace("PAGE" + QByteArray::number(int(page) + 1),
                      QByteArray::fromStdString(QPDFObjectHandle(pages[page]).unparse()));
    return value;
}

QPDFObjectHandle valueOf(QPDF& pdf, const Entry& entry)
{
    QPDFObjectHandle root = pdf.getRoot();
    const QByteArray place = entry.places[0];
    const std::string key = place.mid(place.indexOf('/')).toStdString();
    if (place.startsWith("info"))
        return pdf.getTrailer().getKey("/Info").getKey(key);
    if (!entry.isPreference)
        return root.getKey(key);
    QPDFObjectHandle preferences = root.getKey("/ViewerPreferences");
    return preferences.isDictionary() ? preferences.getKey(key) : QPDFObjectHandle::newNull();
}

} // namespace

class TestViewOnDocuments : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void changesNothingElse_data()
    {
        // where: of the viewer preferences
        const Rows<std::string, QByteArray> row;
        const std::string direct = builder(everyPreference).bytes();
        const std::string indirect = builder("11 0 R").object(11, everyPreference).bytes();
        row("direct", direct, "catalog/ViewerPreferences");
        row("indirect", indirect, "preferences");
        row("missing", builder("null").bytes(), "catalog/ViewerPreferences");
        row("not in the document", builder("99 0 R").bytes(), "whole");
        row("empty", builder("<< >>").bytes(), "catalog/ViewerPreferences");
        row("of the wrong type", builder("[ /HideToolbar ]").bytes(), "whole");
        row("signed", signedDocument(), "catalog/ViewerPreferences");
        row("object streams", inObjectStreams(direct), "catalog/ViewerPreferences");
        row("object streams, indirect", inObjectStreams(indirect), "preferences");
        row("hybrid", hybrid(builder("11 0 R"), 11, everyPreference), "preferences");
        for (const int revision : {2, 3, 4, 6})
            row(QString("encrypted %1").arg(revision), encryptedBy(revision, indirect), "preferences");
        row("encrypted but for metadata", encryptedBy(6, direct, "", false), "catalog/ViewerPreferences");
        row("encrypted object streams", encryptedBy(6, inObjectStreams(indirect)), "preferences");
    }

    void changesNothingElse()
    {
        const auto [bytes, where] = Rows<std::string, QByteArray>::current();
        for (const Entry& entry : entries()) {
            const std::string after = changed(bytes, entry.json, m_folder);
            QVERIFY2(after.starts_with(bytes), (entry.json + ": " + after.substr(0, 60).c_str()).constData());
            QPDF source;
            QPDF result;
            open(source, bytes);
            open(result, after);
            QByteArrayList places = entry.places;
            if (entry.isPreference)
                places[0] = where == "whole" ? "catalog/ViewerPreferences" : where + entry.places[0];
            const QByteArray value = inDocument(entry.value, result);
            // A default and what is to be removed are as asked already where there is nothing.
            if (entry.isPreference && valueOf(source, entry).isNull() &&
                (value == "null" || value == "false" || value == "/UseNone"))
                places.clear();
            QVERIFY2(differences(source, result) == places,
                     (entry.json + ": " + differences(source, result).join(", ")).constData());
            if (places.isEmpty())
                continue;
            QCOMPARE(QByteArray::fromStdString(valueOf(result, entry).unparse()), value);
            QVERIFY(!result.anyWarnings());
        }
    }

    // Entries that are there and say nothing, or what the command line has no word for.
    void changesOddEntries_data()
    {
        const Rows<std::string, QByteArray, QByteArray, QByteArray> add;
        const auto row = [&add](const char* entries, const char* json, const char* place, const char* value) {
            add(QString("%1 %2").arg(entries, json), std::string(entries), json, place, value);
        };
        row("/PageMode /Weird", R"({"pageMode":"UseNone"})", "catalog/PageMode", "/UseNone");
        row("/PageMode /Weird", R"({"pageMode":null})", "catalog/PageMode", "null");
        row("/PageLayout [ /OneColumn ]", R"({"pageLayout":"OneColumn"})", "catalog/PageLayout",
            "/OneColumn");
        row("/Lang /de", R"({"lang":null})", "catalog/Lang", "null");
        row("/Lang ()", R"({"lang":null})", "catalog/Lang", "null");
        row("/OpenAction << /S /GoTo /D (nowhere) >>", R"({"openAction":{"zoom":50}})",
            "catalog/OpenAction/D", "[ PAGE1 /XYZ 0 792 0.5 ]");
        row("/OpenAction [3 0 R /FitB]", R"({"openAction":{"zoom":null}})", "catalog/OpenAction",
            "[ PAGE1 /XYZ 0 792 null ]");
        row("/OpenAction [3 0 R /FitBV 5]", R"({"openAction":{"type":"FitBH"}})", "catalog/OpenAction",
            "[ PAGE1 /FitBH 792 ]");
        row("/OpenAction [3 0 R /FitR 1 2 3 4]", R"({"openAction":{"page":2}})", "catalog/OpenAction",
            "[ PAGE2 /FitR 1 2 3 4 ]");
        row("/OpenAction [3 0 R /FitR 1 2 3 4]", R"({"openAction":{"type":"XYZ"}})", "catalog/OpenAction",
            "[ PAGE1 /XYZ 1 4 null ]");
        row("/OpenAction [3 0 R /XYZ 1 2 99999999999999999999.0]", R"({"openAction":{"page":2}})",
            "catalog/OpenAction", "[ PAGE2 /XYZ 0 792 2147483647 ]");
        row("/OpenAction [3 0 R /FitR 1 2 3 99999999999999999999.5]", R"({"openAction":{"page":2}})",
            "catalog/OpenAction", "[ PAGE2 /FitR 1 2 3 2147483647 ]");
        row("/OpenAction [3 0 R /Odd]", R"({"openAction":{"type":"XYZ"}})", "catalog/OpenAction",
            "[ PAGE1 /XYZ null null null ]");
        const auto preference = [&](const QByteArray& entry, const QByteArray& json, const char* value) {
            const QByteArray key = entry.left(entry.indexOf(' '));
            row("/ViewerPreferences << /Foo (bar) " + entry + " >>",
                "{\"viewerPreferences\":{\"" + key.mid(1) + "\":" + json + "}}",
                "catalog/ViewerPreferences" + key, value);
        };
        for (const char* key : {"/HideToolbar", "/HideMenubar", "/HideWindowUI", "/FitWindow",
                                "/CenterWindow", "/DisplayDocTitle", "/PickTrayByPDFSize"}) {
            preference(QByteArray(key) + " (yes)", "null", "null");
            preference(QByteArray(key) + " 1", "false", "false");
        }
        preference("/NonFullScreenPageMode /FullScreen", "\"UseNone\"", "/UseNone");
        for (const char* entry : {"/NonFullScreenPageMode true", "/Direction (R2L)", "/PrintScaling /Odd",
                                  "/Duplex false", "/NumCopies 0", "/NumCopies 99999999999"})
            preference(entry, "null", "null");
        row("/Title /Name", R"({"title":null})", "info/Title", "null");
        row("/Title [ 1 ]", R"({"title":"T","titleIfMissing":true})", "info/Title", "(T)");
    }

    void changesOddEntries()
    {
        const auto [entries, json, place, value] =
            Rows<std::string, QByteArray, QByteArray, QByteArray>::current();
        const bool isInformation = place.startsWith("info");
        const std::string plain = PdfBuilder()
                                      .catalog(isInformation ? "" : entries)
                                      .pages(3)
                                      .object(9, "<< /Author (A) " + (isInformation ? entries : "") + " >>")
                                      .trailer("/Info 9 0 R")
                                      .bytes();
        for (const std::string& bytes : {plain, inObjectStreams(plain)}) {
            const std::string after = changed(bytes, json, m_folder);
            QVERIFY2(after.starts_with(bytes), after.substr(0, 60).c_str());
            QPDF source;
            QPDF result;
            open(source, bytes);
            open(result, after);
            QCOMPARE(differences(source, result), QByteArrayList{place});
            QPDFObjectHandle found = isInformation ? result.getTrailer().getKey("/Info") : result.getRoot();
            for (const QByteArray& key : place.mid(place.indexOf('/') + 1).split('/'))
                found = found.getKey("/" + key.toStdString());
            QCOMPARE(QByteArray::fromStdString(found.unparse()), inDocument(value, result));
            QCOMPARE(changed(after, json, m_folder), after);
        }
    }

    void leavesATitleBesideMetadataThatCannotBeRead()
    {
        const std::string bytes = builder("null").stream(8, "/Filter /Odd", packet).bytes();
        QCOMPARE(changed(bytes, R"({"title":"New","titleIfMissing":true})", m_folder), bytes);
        QVERIFY(!changed(bytes, R"({"title":"New"})", m_folder).starts_with(bytes));
    }

    void writesTheTitleOnceMore_data()
    {
        const Rows<std::string> row;
        const std::string plain = builder(everyPreference).bytes();
        row("plain", plain);
        row("object streams", inObjectStreams(plain));
        row("encrypted", encryptedBy(4, plain));
        row("metadata not encrypted", encryptedBy(6, plain, "", false));
    }

    void writesTheTitleOnceMore()
    {
        const auto [bytes] = Rows<std::string>::current();
        const std::string once = changed(bytes, R"({"title":"\u6587"})", m_folder);
        const std::string twice = changed(once, R"({"title":"Third"})", m_folder);
        QVERIFY(twice.starts_with(once) && once.starts_with(bytes));
        QCOMPARE(changed(twice, R"({"title":"Third"})", m_folder), twice);
        QPDF pdf;
        open(pdf, twice);
        const auto data = pdf.getRoot().getKey("/Metadata").getStreamData(qpdf_dl_all);
        const QByteArray text(reinterpret_cast<const char*>(data->getBuffer()), int(data->getSize()));
        QCOMPARE(text,
                 xmptitle::write(*xmptitle::write(packet, QString::fromUtf8("\u6587")), "Third")->toUtf8());
    }
};

QTEST_GUILESS_MAIN(TestViewOnDocuments)
#include "TestViewOnDocuments.moc"
