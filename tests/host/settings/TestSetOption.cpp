#include "host/settings/SetOption.h"

#include "EditInitialView/InitialViewSettings.h"
#include "support/Rows.h"
#include "support/UsageErrors.h"

#include <QtTest>

using namespace host;

class TestSetOption : public QObject
{
    Q_OBJECT

private slots:
    void takesEveryKey_data()
    {
        const Rows<QByteArray, QVariant> add;
        const auto row = [&add](const char* word, const QVariant& stored) { add(word, word, stored); };
        row("LayoutAndMagnCheckBox=true", true);
        row("ViewerPrefsCheckBox=0", false);
        row("HideToobarsCheckBox=YES", true);
        row("HideMenuBarCheckBox=off", false);
        row("HideCtrlWindowsCheckBox= on ", true);
        row("ResizeWinToInitPageCheckBox=1", true);
        row("CenterWinOnScreenCheckBox=no", false);
        row("OpenInFullScreenCheckBox=False", false);
        row("NavigationTabComboBox=4", 4);
        row("PageLayoutComboBox=one column", 1);
        row("MagnificationComboBox=12", 12);
        row("MagnificationComboBox=1600%", 12);
        row("OpenToPageSpinBox=9999", 9999);
        row("ShowComboBox=Document Title", 1);
        row("ActionName=Initial View", "Initial View");
    }

    void takesEveryKey()
    {
        const auto [word, stored] = Rows<QByteArray, QVariant>::current();
        SettingsMap map;
        setoption::apply(word.toStdString(), map);
        QCOMPARE(map.size(), 1);
        QCOMPARE(map.firstKey(), QString(word.left(word.indexOf('='))));
        QCOMPARE(map.first(), stored);
        QCOMPARE(map.first().type(), stored.type());
    }

    void namesTheChoices_data()
    {
        const Rows<QByteArray, QByteArray> add;
        const auto row = [&add](const char* word, const char* named) { add(word, word, named); };
        row("PageLayoutComboBox", "KEY=VALUE");
        row("=1", "LayoutAndMagnCheckBox");
        row("PageLayout=1", "PageLayoutComboBox");
        row("pagelayoutcombobox=1", "PageLayoutComboBox");
        row("LayoutAndMagnCheckBox=2", "true or false");
        row("LayoutAndMagnCheckBox=", "true or false");
        row("PageLayoutComboBox=7", "6  No preference set in document");
        row("PageLayoutComboBox=-1", "0  Single Page");
        row("MagnificationComboBox=13", "12  1600%");
        row("MagnificationComboBox=1.5", "12  1600%");
        row("NavigationTabComboBox=99999999999999999999", "4  Attachments Panel and Page");
        row("OpenToPageSpinBox=0", "1 to 9999");
        row("OpenToPageSpinBox=10000", "1 to 9999");
        row("OpenToPageSpinBox=3x", "1 to 9999");
        row("ShowComboBox=\xff", "1  Document Title");
        row("ActionName=Watermark", "\"Initial View\"");
    }

    void namesTheChoices()
    {
        const auto [word, named] = Rows<QByteArray, QByteArray>::current();
        SettingsMap map;
        const std::string refusal =
            refusalOf([&, &text = word] { setoption::apply(text.toStdString(), map); });
        QVERIFY2(QByteArray::fromStdString(refusal).contains(named), refusal.c_str());
        QVERIFY(map.isEmpty());
    }

    void takesEveryRowByNumberAndLabel()
    {
        for (int index = 0; index < int(initialview::pageLayoutLabels.size()); ++index) {
            SettingsMap map;
            const std::string key = initialview::key::PageLayout;
            setoption::apply(key + "=" + std::to_string(index), map);
            QCOMPARE(map.first().toInt(), index);
            setoption::apply(key + "=" + initialview::pageLayoutLabels[std::size_t(index)], map);
            QCOMPARE(map.first().toInt(), index);
        }
    }

    void lastOneWins()
    {
        SettingsMap map;
        setoption::apply("OpenToPageSpinBox=2", map);
        setoption::apply("OpenToPageSpinBox=3", map);
        QCOMPARE(map, (SettingsMap{{"OpenToPageSpinBox", 3}}));
    }
};

QTEST_GUILESS_MAIN(TestSetOption)
#include "TestSetOption.moc"
