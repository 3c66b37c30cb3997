#include "host/change/LanguageTag.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "support/Rows.h"
#include "support/folders/WorkFolder.h"
#include "support/program/UsageErrors.h"

#include <QJsonDocument>

using namespace host;
using enum ViewEntry;

namespace {

const viewentries::Description& entryOf(const QByteArray& option)
{
    for (const auto& each : viewentries::all())
        if (option == each.option)
            return each;
    qFatal("no such entry");
}

ViewChange with(ViewEntry entry, const std::string& word)
{
    ViewChange change;
    change.set(entry, viewvalues::parse(entry, word));
    return change;
}

QJsonObject object(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class TestViewChange : public QObject
{
    Q_OBJECT

private slots:
    void tableIsInOrder()
    {
        for (std::size_t index = 0; index < viewEntryCount; ++index)
            QCOMPARE(std::size_t(viewentries::all()[index].entry), index);
    }

    /// A word, the word that it is printed back as, and what it is in JSON.
    void takesEveryWord_data()
    {
        const Rows<QByteArray, std::string, std::string, QByteArray> add;
        const auto row = [&add](const char* option, const char* word, const char* printed, const char* json) {
            add(QString("%1 %2").arg(option, word), option, word, printed, json);
        };
        const std::pair<const char*, const char*> modes[] = {{"use-none", "UseNone"},
                                                             {"use-outlines", "UseOutlines"},
                                                             {"use-thumbs", "UseThumbs"},
                                                             {"use-oc", "UseOC"},
                                                             {"use-attachments", "UseAttachments"}};
        for (const auto& [word, name] : modes) {
            row("page-mode", word, word, qPrintable(QString(R"({"pageMode":"%1"})").arg(name)));
            row("non-full-screen-page-mode", word, word,
                qPrintable(QString(R"({"viewerPreferences":{"NonFullScreenPageMode":"%1"}})").arg(name)));
        }
        row("page-mode", "full-screen", "full-screen", R"({"pageMode":"FullScreen"})");
        row("page-mode", "unset", "unset", R"({"pageMode":null})");
        row("page-mode", "none", "use-none", R"({"pageMode":"UseNone"})");
        row("page-mode", "bookmarks", "use-outlines", R"({"pageMode":"UseOutlines"})");
        row("page-mode", "thumbnails", "use-thumbs", R"({"pageMode":"UseThumbs"})");
        row("page-mode", "layers", "use-oc", R"({"pageMode":"UseOC"})");
        row("page-mode", "attachments", "use-attachments", R"({"pageMode":"UseAttachments"})");
        row("page-mode", "UseOutlines", "use-outlines", R"({"pageMode":"UseOutlines"})");
        const std::pair<const char*, const char*> layouts[] = {
            {"single-page", "SinglePage"},        {"one-column", "OneColumn"},
            {"two-column-left", "TwoColumnLeft"}, {"two-column-right", "TwoColumnRight"},
            {"two-page-left", "TwoPageLeft"},     {"two-page-right", "TwoPageRight"}};
        for (const auto& [word, name] : layouts)
            row("page-layout", word, word, qPrintable(QString(R"({"pageLayout":"%1"})").arg(name)));
        row("page-layout", "unset", "unset", R"({"pageLayout":null})");
        row("open-page", "12", "12", R"({"openAction":{"page":12}})");
        row("open-page", "last", "last", R"({"openAction":{"page":"last"}})");
        row("open-page", "unset", "unset", R"({"openAction":null})");
        row("zoom", "default", "default", R"({"openAction":{"type":"XYZ","zoom":null}})");
        row("zoom", "fit-page", "fit-page", R"({"openAction":{"type":"Fit","zoom":null}})");
        row("zoom", "fit-width", "fit-width", R"({"openAction":{"type":"FitH","zoom":null}})");
        row("zoom", "fit-height", "fit-height", R"({"openAction":{"type":"FitV","zoom":null}})");
        row("zoom", "fit-visible", "fit-visible", R"({"openAction":{"type":"FitBH","zoom":null}})");
        row("zoom", "150%", "150%", R"({"openAction":{"type":"XYZ","zoom":150}})");
        row("zoom", "8.33%", "8.33%", R"({"openAction":{"type":"XYZ","zoom":8.33}})");
        row("zoom", "8.33333%", "8.3333%", R"({"openAction":{"type":"XYZ","zoom":8.3333}})");
        row("zoom", "1", "1%", R"({"openAction":{"type":"XYZ","zoom":1}})");
        row("zoom", "6400%", "6400%", R"({"openAction":{"type":"XYZ","zoom":6400}})");
        const std::pair<const char*, const char*> flags[] = {{"hide-toolbar", "HideToolbar"},
                                                             {"hide-menubar", "HideMenubar"},
                                                             {"hide-window-ui", "HideWindowUI"},
                                                             {"fit-window", "FitWindow"},
                                                             {"center-window", "CenterWindow"},
                                                             {"display-doc-title", "DisplayDocTitle"},
                                                             {"pick-tray-by-pdf-size", "PickTrayByPDFSize"}};
        for (const auto& [option, key] : flags)
            for (const auto& [word, value] : {std::pair("yes", "true"), {"no", "false"}, {"unset", "null"}})
                row(option, word, word,
                    qPrintable(QString(R"({"viewerPreferences":{"%1":%2}})").arg(key, value)));
        row("direction", "l2r", "l2r", R"({"viewerPreferences":{"Direction":"L2R"}})");
        row("direction", "R2L", "r2l", R"({"viewerPreferences":{"Direction":"R2L"}})");
        row("print-scaling", "none", "none", R"({"viewerPreferences":{"PrintScaling":"None"}})");
        row("print-scaling", "app-default", "app-default",
            R"({"viewerPreferences":{"PrintScaling":"AppDefault"}})");
        row("duplex", "simplex", "simplex", R"({"viewerPreferences":{"Duplex":"Simplex"}})");
        row("duplex", "duplex-flip-short-edge", "duplex-flip-short-edge",
            R"({"viewerPreferences":{"Duplex":"DuplexFlipShortEdge"}})");
        row("duplex", "duplex-flip-long-edge", "duplex-flip-long-edge",
            R"({"viewerPreferences":{"Duplex":"DuplexFlipLongEdge"}})");
        row("num-copies", "3", "3", R"({"viewerPreferences":{"NumCopies":3}})");
        row("num-copies", "unset", "unset", R"({"viewerPreferences":{"NumCopies":null}})");
        row("title", "unset", "unset", R"({"title":"unset"})");
        row("title", "", "", R"({"title":null})");
        row("lang", "pt-BR", "pt-BR", R"({"lang":"pt-BR"})");
        row("lang", "unset", "unset", R"({"lang":null})");
    }

    void takesEveryWord()
    {
        const auto [option, word, printed, json] =
            Rows<QByteArray, std::string, std::string, QByteArray>::current();
        const viewentries::Description& entry = entryOf(option);
        const ViewChange change = with(entry.entry, word);
        const std::vector<std::string> options{"--" + option.toStdString(), printed};
        QCOMPARE(viewvalues::optionsOf(change), options);
        QCOMPARE(with(entry.entry, printed), change);
        QCOMPARE(viewjson::write(change), object(json));
        QCOMPARE(viewjson::parse(object(json)), change);
    }

    void refusesOtherWords_data()
    {
        const Rows<QByteArray, std::string, QByteArray> add;
        const auto row = [&add](const char* option, const char* word, const char* answer) {
            add(QString("%1 %2").arg(option, word), option, word, answer);
        };
        row("page-mode", "bookmrks", "did you mean \"bookmarks\"?");
        row("page-mode", "outlines", "did you mean \"use-outlines\"?");
        row("page-mode", "", "it takes use-none, use-outlines");
        row("page-layout", "two-columns-left", "did you mean \"two-column-left\"?");
        row("non-full-screen-page-mode", "full-screen", "it takes use-none");
        row("open-page", "0", "a page's number from 1");
        row("open-page", "-1", "a page's number from 1");
        row("open-page", "2.5", "a page's number from 1");
        row("open-page", "99999999999", "a page's number from 1");
        row("open-page", "lsat", "did you mean \"last\"?");
        row("zoom", "fitwith", "did you mean \"fit-width\"?");
        row("zoom", "0.99%", "did you mean \"1%\"?\nit takes a percentage from 1% to 6400%");
        row("zoom", "6400.1%", "did you mean \"6400%\"?");
        row("zoom", "1,5%", "1% to 6400%");
        row("zoom", "nan", "1% to 6400%");
        row("zoom", "150%%", "1% to 6400%");
        row("zoom", "unset", "--zoom cannot be");
        row("hide-toolbar", "true", "did you mean \"yes\"?");
        row("hide-toolbar", "yess", "did you mean \"yes\"?");
        row("hide-toolbar", "maybe", "it takes yes, no, unset");
        row("num-copies", "0", "a number from 1");
        row("title", "\xff", "not in UTF-8");
        row("title", "a\nb", "control characters");
        row("title", "\x7f", "control characters");
        row("title", "\xef\xbf\xbe", "no characters");
        row("title", "\xed\xa0\x80", "not in UTF-8");
        row("zoom", "fit-box", "--zoom cannot be");
        row("lang", "english language", "a language tag");
    }

    void refusesOtherWords()
    {
        const auto [option, word, answer] = Rows<QByteArray, std::string, QByteArray>::current();
        const std::string refusal =
            refusalOf([entry = entryOf(option).entry, &text = word] { viewvalues::parse(entry, text); });
        QVERIFY2(QByteArray::fromStdString(refusal).contains(answer), refusal.c_str());
    }

    void takesAView()
    {
        const ViewChange change = viewjson::parse(object(
            R"({"file":"a.pdf","pages":8,"encrypted":false,"signatures":0,"pageMode":"UseThumbs","pageLayout":null,
                "openAction":{"page":2,"type":"XYZ","zoom":150,"name":"chapter"},
                "viewerPreferences":{"HideToolbar":true,"DisplayDocTitle":null}})"));
        const std::vector<std::string> options{
            "--page-mode", "use-thumbs", "--page-layout",  "unset", "--open-page",         "2",
            "--zoom",      "150%",       "--hide-toolbar", "yes",   "--display-doc-title", "unset"};
        QCOMPARE(viewvalues::optionsOf(change), options);
        const ViewChange none = viewjson::parse(object(R"({"viewerPreferences":null})"));
        QVERIFY(none[HideToolbar] == ViewValue(Unset()) && none[NumCopies] == ViewValue(Unset()));
        QVERIFY(!none[PageMode] && !none[Title]);
    }

    /// What documents have and the command line does not take.
    void takesEveryDocumentsView_data()
    {
        const Rows<QByteArray> add;
        const auto row = [&add](const char* json) { add(json, json); };
        row(R"({"openAction":{"page":1,"type":"XYZ","zoom":0.5}})");
        row(R"({"openAction":{"page":1,"type":"XYZ","zoom":214748364700}})");
        row(R"({"openAction":{"page":1,"type":"FitB","zoom":null}})");
        row(R"({"openAction":{"page":1,"type":"FitBV","zoom":null}})");
        row(R"({"openAction":{"page":1,"type":"FitR","zoom":null,"rectangle":[1,2.5,-3,4]}})");
        row(R"({"openAction":{"action":"JavaScript"}})");
        row(R"({"openAction":{"action":"GoTo"}})");
        row(R"({"lang":"english language"})");
        row(R"({"title":"line\u000afeed"})");
    }

    void takesEveryDocumentsView()
    {
        const auto [json] = Rows<QByteArray>::current();
        QCOMPARE(viewjson::write(viewjson::parse(object(json))), object(json));
    }

    void tellsWhatSaysNothing()
    {
        ViewChange view;
        view.set(PageLayout, Invalid());
        view.set(NumCopies, Invalid());
        view.set(Lang, std::string());
        view.set(OpenPage, 1);
        view.set(Zoom, Magnification{0});
        const QJsonObject json = viewjson::write(view);
        QCOMPARE(json, object(R"({"pageLayout":null,"viewerPreferences":{"NumCopies":null},"lang":"",
            "openAction":{"page":1,"type":null,"zoom":null},"invalid":["pageLayout","NumCopies"]})"));
        const std::vector<std::string> options{"--page-layout", "unset",   "--open-page",  "1",
                                               "--zoom",        "default", "--num-copies", "unset",
                                               "--lang",        ""};
        QCOMPARE(viewvalues::optionsOf(viewjson::parse(json)), options);
        QCOMPARE(viewvalues::told(Lang, view[Lang].value()), std::string("empty"));
        QCOMPARE(viewvalues::told(PageLayout, view[PageLayout].value()), std::string("invalid"));
        QCOMPARE(viewvalues::told(Zoom, view[Zoom].value()), std::string("unknown"));
    }

    void refusesOtherJson_data()
    {
        const Rows<QByteArray, QByteArray> add;
        const auto row = [&add](const char* json, const char* answer) { add(json, json, answer); };
        row(R"({"pagemode":"UseNone"})", "unknown name \"pagemode\"; did you mean \"pageMode\"?");
        row(R"({"pageMode":"use-none"})",
            "pageMode cannot be \"use-none\"; did you mean \"UseNone\"?\nit is one of UseNone, UseOutlines");
        row(R"({"pageMode":7})", "pageMode cannot be 7");
        row(R"({"openAction":5})", "an object or null");
        row(R"({"openAction":{"page":0}})", "page cannot be 0");
        row(R"({"openAction":{"page":"first"}})", "a whole number from 1, or \"last\"");
        row(R"({"openAction":{"page":1.5}})", "page cannot be 1.5");
        row(R"({"openAction":{"page":null}})", "page cannot be null");
        row(R"({"openAction":{"type":"JavaScript"}})", "type cannot be \"JavaScript\"\nit is one of XYZ");
        row(R"({"openAction":{"type":"Fit","zoom":50}})", "only the type XYZ");
        row(R"({"openAction":{"zoom":0}})", "zoom cannot be 0: it is a percentage above 0, up to 2147");
        row(R"({"openAction":{"zoom":1e300}})", "zoom cannot be 1e+300");
        row(R"({"openAction":{"zoom":"50%"}})", "zoom cannot be \"50%\"");
        row(R"({"openAction":{"type":"FitR"}})", "FitR needs a rectangle: [left, bottom, right, top]");
        row(R"({"openAction":{"type":"FitR","rectangle":[1,2,-1e300,4]}})", "in numbers up to 2147483647");
        row(R"({"openAction":{"type":"FitR","rectangle":[1,2,3]}})", "FitR needs a rectangle");
        row(R"({"openAction":{"type":"FitR","rectangle":[1,2,3,"4"]}})", "FitR needs a rectangle");
        row(R"({"openAction":{"action":"JavaScript","page":1}})", "has an action, so it has no page");
        row(R"({"openAction":{"action":5}})", "action of openAction cannot be 5");
        row(R"({"openAction":{"name":"chapter"}})", "no page");
        row(R"({"openAction":{"left":1}})", "unknown name \"left\"");
        row(R"({"viewerPreferences":{"HideToolBar":true}})", "did you mean \"HideToolbar\"?");
        row(R"({"viewerPreferences":{"HideToolbar":1}})", "true, false or null");
        row(R"({"viewerPreferences":[]})", "an object or null");
        row(R"({"title":5})", "a text or null");
        row(R"({"title":"a\ud800b"})", "whole characters");
        row(R"({"lang":["en"]})", "lang cannot be [\"en\"]: it is a text or null");
        row(R"({"titleIfMissing":"yes"})", "true or false");
    }

    void refusesOtherJson()
    {
        const auto [json, answer] = Rows<QByteArray, QByteArray>::current();
        const std::string refusal = refusalOf([&text = json] { viewjson::parse(object(text)); });
        QVERIFY2(QByteArray::fromStdString(refusal).contains(answer), refusal.c_str());
    }

    void readsFiles()
    {
        const WorkFolder folder;
        WorkFolder::put("view.json", R"({"pageMode":"UseOC"})");
        QCOMPARE(viewjson::readFile("view.json"), with(PageMode, "layers"));
        WorkFolder::put("list.json", "[]");
        WorkFolder::put("cut.json", "{\"pageMode\":");
        WorkFolder::put("odd.json", R"({"pageMode":1})");
        WorkFolder::put("large.json", std::string(2 << 20, ' '));
        for (const char* file : {"missing.json", "list.json", "cut.json", "odd.json", "large.json", "."}) {
            const std::string refusal = refusalOf([&] { viewjson::readFile(file); });
            QVERIFY2(QByteArray::fromStdString(refusal).startsWith(QByteArray("the view ") + file),
                     refusal.c_str());
        }
    }

    void titlesComeFromFileNames()
    {
        ViewChange change;
        change.keepTitles();
        QVERIFY(!change.contradiction().empty());
        change.set(Title, FileNameAsTitle());
        QVERIFY(change.contradiction().empty());
        const std::vector<std::string> options{"--title-from-file-name", "--title-if-missing"};
        QCOMPARE(viewvalues::optionsOf(change), options);
        QCOMPARE(viewjson::write(change), object(R"({"titleFromFileName":true,"titleIfMissing":true})"));
        QCOMPARE(viewjson::parse(viewjson::write(change)), change);
    }

    void laterChangesCount()
    {
        ViewChange change = with(PageMode, "bookmarks");
        change.add(with(Zoom, "50%"));
        change.add(with(PageMode, "unset"));
        const std::vector<std::string> options{"--page-mode", "unset", "--zoom", "50%"};
        QCOMPARE(viewvalues::optionsOf(change), options);
        QVERIFY(ViewChange().isEmpty() && !change.isEmpty());
        // No open action has no magnification, and what has one is no other action.
        change.add(with(OpenPage, "unset"));
        QVERIFY(!change[Zoom] && change[OpenPage] == ViewValue(Unset()));
        change.set(OpenPage, OtherAction{"JavaScript"});
        change.add(with(Zoom, "60%"));
        QVERIFY(change[Zoom] && !change[OpenPage]);
        change.set(OpenPage, Unset());
        QVERIFY(!change.contradiction().empty());
    }

    void knowsLanguageTags()
    {
        for (const char* tag : {"en", "en-GB", "zh-Hant-TW", "zh-cmn-Hans-CN", "sl-rozaj-biske", "de-CH-1996",
                                "es-419", "en-a-bbb-x-a", "x-whatever", "i-klingon", "sgn-BE-FR",
                                "hy-Latn-IT-arevela", "az-Arab-x-AZE-derbend", "EN-us"})
            QVERIFY2(isLanguageTag(tag), tag);
        for (const char* tag : {"", "e", "en_GB", "en-", "-en", "en--GB", "a-DE", "en-x", "en-a", "de-419-DE",
                                "en GB", "en\n", "123"})
            QVERIFY2(!isLanguageTag(tag), tag);
    }
};

QTEST_GUILESS_MAIN(TestViewChange)
#include "TestViewChange.moc"
