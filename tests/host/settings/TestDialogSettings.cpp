#include "EditInitialView/InitialViewSettings.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "host/settings/DialogSettings.h"
#include "support/Rows.h"

#include <QJsonDocument>

using namespace host;
using namespace initialview;

namespace {

ViewChange view(const QByteArray& json)
{
    return viewjson::parse(QJsonDocument::fromJson(json).object());
}

/// Every entry of a document that has these and no others.
ViewChange document(const QByteArray& json)
{
    ViewChange present;
    for (const viewentries::Description& each : viewentries::all())
        if (each.entry != ViewEntry::Title && each.entry != ViewEntry::Lang)
            present.set(each.entry, Unset());
    present.add(view(json));
    return present;
}

/// The document once the change is made: an open action has a page and a magnification.
ViewChange changed(ViewChange present, const ViewChange& change)
{
    present.add(change);
    if (!change[ViewEntry::OpenPage] && !change[ViewEntry::Zoom])
        return present;
    if (present[ViewEntry::OpenPage].value_or(Unset()) == ViewValue(Unset()))
        present.set(ViewEntry::OpenPage, 1);
    if (present[ViewEntry::Zoom].value_or(Unset()) == ViewValue(Unset()))
        present.set(ViewEntry::Zoom, Magnification());
    return present;
}

QByteArray wordsOf(const ViewChange& change)
{
    QByteArray line;
    for (const std::string& word : viewvalues::optionsOf(change))
        line += (line.isEmpty() ? "" : " ") + QByteArray::fromStdString(word);
    return line;
}

QByteArray notesOf(const DialogSettings& settings, DialogSettings::Unshown unshown)
{
    QByteArray lines;
    for (const std::string& note : settings.notes(unshown))
        lines += QByteArray::fromStdString(note) + "\n";
    return lines;
}

SettingsMap chosenIn(const DialogSettings& settings, const SettingsMap& choices)
{
    SettingsMap chosen = settings.map();
    for (auto each = choices.begin(); each != choices.end(); ++each)
        chosen.insert(each.key(), each.value());
    return chosen;
}

const char bookmarks[] = R"({"pageMode":"UseOutlines"})";
const char fullScreen[] =
    R"({"pageMode":"FullScreen","viewerPreferences":{"NonFullScreenPageMode":"UseThumbs"}})";
const char script[] = R"({"openAction":{"action":"JavaScript"}})";
const char panels[] =
    R"({"pageMode":"UseOutlines","viewerPreferences":{"NonFullScreenPageMode":"UseThumbs"}})";
const char zoomed[] = R"({"openAction":{"page":2,"type":"XYZ","zoom":150}})";

} // namespace

class TestDialogSettings : public QObject
{
    Q_OBJECT

private slots:
    void everyChoiceIsOneOption_data()
    {
        const Rows<QString, QVariant, QVariant, QByteArray> row;
        const auto list = [&row](const char* name, const QByteArray& option, const QByteArrayList& words) {
            const auto count = static_cast<int>(findKey(name)->rows.size());
            QCOMPARE(words.size(), count);
            for (int index = 0; index < count; ++index)
                row(option + ' ' + words[index], name, (index + 1) % count, index,
                    option + ' ' + words[index]);
        };
        list(key::NavigationTab, "--page-mode",
             {"use-none", "use-outlines", "use-thumbs", "use-oc", "use-attachments"});
        list(key::PageLayout, "--page-layout",
             {"single-page", "one-column", "two-column-left", "two-column-right", "two-page-left",
              "two-page-right", "unset"});
        list(key::Magnification, "--zoom",
             {"default", "fit-page", "fit-width", "fit-height", "fit-visible", "25%", "50%", "75%", "100%",
              "200%", "400%", "800%", "1600%"});
        list(key::Show, "--display-doc-title", {"no", "yes"});
        for (const int page : {1, 7, 9999})
            row("page", key::OpenToPage, 3, page, "--open-page " + QByteArray::number(page));
        const std::pair<const char*, QByteArray> flags[] = {{key::HideToolBars, "--hide-toolbar"},
                                                            {key::HideMenuBar, "--hide-menubar"},
                                                            {key::HideCtrlWindows, "--hide-window-ui"},
                                                            {key::ResizeWinToInitPage, "--fit-window"},
                                                            {key::CenterWinOnScreen, "--center-window"}};
        for (const auto& [name, option] : flags)
            for (const bool on : {false, true})
                row(option, name, !on, on, option + (on ? " yes" : " no"));
        row("full screen", key::OpenInFullScreen, false, true, "--page-mode full-screen");
        row("no full screen", key::OpenInFullScreen, true, false, "--page-mode use-none");
    }

    void everyChoiceIsOneOption()
    {
        const auto [name, before, after, words] = Rows<QString, QVariant, QVariant, QByteArray>::current();
        const DialogSettings plain(document("{}"));
        // A document that opens as the first choice says.
        const ViewChange present = changed(document("{}"), plain.changeTo(chosenIn(plain, {{name, before}})));
        const DialogSettings settings(present);
        QCOMPARE(settings.map(), chosenIn(plain, {{name, before}}));
        QCOMPARE(notesOf(settings, DialogSettings::Unshown::Stays), QByteArray());
        QVERIFY(settings.changeTo(settings.map()).isEmpty());

        const SettingsMap chosen = chosenIn(settings, {{name, after}});
        const ViewChange change = settings.changeTo(chosen);
        QCOMPARE(wordsOf(change), words);
        QCOMPARE(DialogSettings(changed(present, change)).map(), chosen);
    }

    // What the dialog offers and nobody translates would change nothing.
    void everyKeyIsTranslated()
    {
        const DialogSettings settings(document("{}"));
        for (const Key& key : keys) {
            if (key.group == nullptr)
                continue;
            QVERIFY2(settings.map().contains(key.name), key.name);
            const int other = settings.map().value(key.name).toInt() == key.lowest ? key.highest : key.lowest;
            const QVariant value = key.type == ValueType::Flag ? QVariant(other == 1) : QVariant(other);
            QVERIFY2(!settings.changeTo(chosenIn(settings, {{key.name, value}})).isEmpty(), key.name);
        }
    }

    void changesWhatWasChanged_data()
    {
        const Rows<QByteArray, SettingsMap, QByteArray> row;
        const char title[] = R"({"viewerPreferences":{"DisplayDocTitle":true,"HideToolbar":true}})";
        row("the title stays", title, {{key::HideMenuBar, true}}, "--hide-menubar yes");
        row("magnification without a row stays", zoomed, {{key::OpenToPage, 3}}, "--open-page 3");
        row("magnification without a row is changed", zoomed, {{key::Magnification, 0}}, "--zoom default");
        row("no open action, page alone", "{}", {{key::OpenToPage, 3}}, "--open-page 3");
        row("another action stays", script, {{key::PageLayout, 1}}, "--page-layout one-column");
        row("another action is replaced", script, {{key::Magnification, 0}}, "--zoom default");
        row("a list left without a row", bookmarks,
            {{key::NavigationTab, -1}, {key::PageLayout, -1}, {key::Show, -1}}, "");
        row("a page beyond the last", R"({"openAction":{"page":12000,"type":"Fit"}})",
            {{key::HideToolBars, true}}, "--hide-toolbar yes");
        row("both groups off", bookmarks,
            {{key::LayoutAndMagn, false},
             {key::ViewerPrefs, false},
             {key::NavigationTab, 0},
             {key::HideToolBars, true}},
            "");
        row("layout off", bookmarks,
            {{key::LayoutAndMagn, false}, {key::NavigationTab, 0}, {key::HideToolBars, true}},
            "--hide-toolbar yes");
        row("preferences off", bookmarks,
            {{key::ViewerPrefs, false}, {key::NavigationTab, 0}, {key::OpenInFullScreen, true}},
            "--page-mode use-none");
        row("full screen keeps the panel", bookmarks, {{key::OpenInFullScreen, true}},
            "--page-mode full-screen --non-full-screen-page-mode use-outlines");
        row("full screen keeps the panel for after it", panels, {{key::OpenInFullScreen, true}},
            "--page-mode full-screen");
        row("full screen and a panel", panels, {{key::OpenInFullScreen, true}, {key::NavigationTab, 3}},
            "--page-mode full-screen --non-full-screen-page-mode use-oc");
        row("panel of full screen", fullScreen, {{key::NavigationTab, 3}},
            "--non-full-screen-page-mode use-oc");
        row("full screen is left", fullScreen, {{key::OpenInFullScreen, false}}, "--page-mode use-thumbs");
        row("full screen is left, layout off", fullScreen,
            {{key::OpenInFullScreen, false}, {key::LayoutAndMagn, false}, {key::NavigationTab, 4}},
            "--page-mode use-thumbs");
        row("panel of full screen, preferences off", fullScreen,
            {{key::ViewerPrefs, false}, {key::OpenInFullScreen, false}, {key::NavigationTab, 1}},
            "--non-full-screen-page-mode use-outlines");
    }

    void changesWhatWasChanged()
    {
        const auto [json, choices, words] = Rows<QByteArray, SettingsMap, QByteArray>::current();
        const DialogSettings settings(document(json));
        QCOMPARE(wordsOf(settings.changeTo(settings.map())), QByteArray());
        QCOMPARE(wordsOf(settings.changeTo(chosenIn(settings, choices))), words);
    }

    void notesWhatNoRowSays_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QVariant> row;
        row("magnification", zoomed, "no row for its magnification, 150%;", key::Magnification, -1);
        row("fraction", R"({"openAction":{"page":1,"type":"XYZ","zoom":8.33}})", "8.33%", key::Magnification,
            -1);
        row("box", R"({"openAction":{"page":1,"type":"FitB"}})", "no row for its magnification, fit-box;",
            key::Magnification, -1);
        row("another action", script, "an action (JavaScript)", key::Magnification, -1);
        row("page", R"({"openAction":{"page":12000,"type":"Fit"}})", "opening page, 12000", key::OpenToPage,
            9999);
        row("other preferences", R"({"viewerPreferences":{"Direction":"R2L","NumCopies":2}})",
            "leaves it: direction (r2l), num copies (2)", key::Magnification, 0);
        row("page mode of full screen", fullScreen, "", key::NavigationTab, 2);
        row("panel after full screen", panels, "panel after full screen, use-thumbs;", key::NavigationTab, 1);
        row("nothing", "{}", "", key::OpenToPage, 1);
    }

    void notesWhatNoRowSays()
    {
        const auto [json, note, name, value] = Rows<QByteArray, QByteArray, QByteArray, QVariant>::current();
        const DialogSettings settings(document(json));
        const QByteArray notes = notesOf(settings, DialogSettings::Unshown::Stays);
        QCOMPARE(notes.count('\n'), note.isEmpty() ? 0 : 1);
        QVERIFY2(notes.contains(note), notes);
        // It stays, and of settings, which are whole, is not said to.
        QVERIFY(settings.changeTo(settings.map()).isEmpty());
        QVERIFY(!notesOf(settings, DialogSettings::Unshown::Replaced).contains("stays"));
        QCOMPARE(notes.contains("stays"),
                 notesOf(settings, DialogSettings::Unshown::Replaced).contains("replace it"));
        QCOMPARE(settings.map().value(name), value);
    }

    void notesWhatIsInvalid()
    {
        ViewChange present = document("{}");
        present.set(ViewEntry::PageMode, Invalid());
        present.set(ViewEntry::HideToolbar, Invalid());
        const DialogSettings settings(present);
        QCOMPARE(notesOf(settings, DialogSettings::Unshown::Stays),
                 QByteArray(
                     "what it has is invalid: page mode, hide toolbar; it stays unless another is chosen\n"));
        const ViewChange shown = settings.viewShown(settings.map());
        QVERIFY(!shown[ViewEntry::PageMode] && !shown[ViewEntry::HideToolbar] &&
                shown[ViewEntry::HideMenubar]);
    }

    // A view of all that is shown is none of what is not.
    void leavesOutWhatTheWindowCannotShow_data()
    {
        const Rows<QByteArray, SettingsMap, QByteArray> row;
        row("another action", script, {}, "");
        row("another action replaced", script, {{key::OpenToPage, 2}}, "--open-page 2");
        row("magnification", zoomed, {}, "--open-page 2");
        row("page", R"({"openAction":{"page":12000,"type":"Fit"}})", {}, "--zoom fit-page");
        row("everything", "{}", {}, "--open-page 1 --zoom default");
    }

    void leavesOutWhatTheWindowCannotShow()
    {
        const auto [json, choices, words] = Rows<QByteArray, SettingsMap, QByteArray>::current();
        const DialogSettings settings(document(json));
        const ViewChange shown = settings.viewShown(chosenIn(settings, choices));
        QVERIFY(shown[ViewEntry::HideToolbar] && shown[ViewEntry::PageLayout]);
        ViewChange opening;
        for (const ViewEntry each : {ViewEntry::OpenPage, ViewEntry::Zoom})
            if (shown[each])
                opening.set(each, *shown[each]);
        QCOMPARE(wordsOf(opening), words);
    }

    void saysEverythingOfGroupsThatAreOn_data()
    {
        const Rows<SettingsMap, QByteArray> row;
        row("both", {}, R"({"pageMode":"UseOutlines","pageLayout":null,
            "openAction":{"page":1,"type":"XYZ","zoom":null},
            "viewerPreferences":{"HideToolbar":false,"HideMenubar":false,"HideWindowUI":false,
            "FitWindow":false,"CenterWindow":false,"DisplayDocTitle":false}})");
        row("full screen", {{key::OpenInFullScreen, true}, {key::HideToolBars, true}, {key::PageLayout, 5}},
            R"({"pageMode":"FullScreen","pageLayout":"TwoPageRight",
            "openAction":{"page":1,"type":"XYZ","zoom":null},
            "viewerPreferences":{"HideToolbar":true,"HideMenubar":false,"HideWindowUI":false,
            "FitWindow":false,"CenterWindow":false,"DisplayDocTitle":false,
            "NonFullScreenPageMode":"UseOutlines"}})");
        row("layout", {{key::ViewerPrefs, false}, {key::OpenInFullScreen, true}, {key::Magnification, -1}},
            R"({"pageMode":"UseOutlines","pageLayout":null,"openAction":{"page":1}})");
        row("preferences", {{key::LayoutAndMagn, false}, {key::Show, 1}},
            R"({"viewerPreferences":{"HideToolbar":false,"HideMenubar":false,"HideWindowUI":false,
            "FitWindow":false,"CenterWindow":false,"DisplayDocTitle":true}})");
        row("none", {{key::LayoutAndMagn, false}, {key::ViewerPrefs, false}}, "{}");
    }

    void saysEverythingOfGroupsThatAreOn()
    {
        const auto [choices, json] = Rows<SettingsMap, QByteArray>::current();
        const DialogSettings settings(document(bookmarks));
        QCOMPARE(DialogSettings::viewOf(chosenIn(settings, choices)), view(json));
    }
};

QTEST_GUILESS_MAIN(TestDialogSettings)
#include "TestDialogSettings.moc"
