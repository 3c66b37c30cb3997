#include "host/settings/SetOption.h"

#include "EditInitialView/InitialViewSettings.h"
#include "support/Rows.h"
#include "support/program/UsageErrors.h"

#include <QtTest>

using namespace host;
using namespace initialview;

namespace {

SettingsMap taken(const std::string& key, const std::string& value)
{
    SettingsMap map;
    setoption::apply(key + "=" + value, map);
    return map;
}

} // namespace

class TestSetOption : public QObject
{
    Q_OBJECT

private slots:
    void takesEveryKeyAndEveryRow()
    {
        for (const Key& key : keys) {
            if (key.type == ValueType::Text)
                continue;
            for (const int number : {key.lowest, key.highest}) {
                const QVariant stored =
                    key.type == ValueType::Flag ? QVariant(number != 0) : QVariant(number);
                QCOMPARE(taken(key.name, std::to_string(number)), (SettingsMap{{key.name, stored}}));
            }
            for (std::size_t row = 0; row < key.rows.size(); ++row)
                QCOMPARE(taken(key.name, key.rows[row]), (SettingsMap{{key.name, int(row)}}));
        }
        QCOMPARE(taken(key::ActionName, actionName), (SettingsMap{{key::ActionName, actionName}}));
    }

    // What "quintar configure" tells at its end brings the same settings back.
    void tellsEveryKeyAsItTakesIt()
    {
        SettingsMap all;
        for (const Key& key : keys)
            if (key.type != ValueType::Text)
                all.insert(key.name,
                           key.type == ValueType::Flag ? QVariant(key.highest == 1) : QVariant(key.highest));
        std::vector<std::string> leftOut;
        SettingsMap again;
        for (const std::string& word : setoption::wordsOf(all, leftOut))
            setoption::apply(word, again);
        QCOMPARE(again, all);
        QVERIFY(leftOut.empty());
        const QByteArray described = QByteArray::fromStdString(setoption::describeKeys());
        for (const QString& name : all.keys())
            QVERIFY2(described.contains(name.toUtf8()), qPrintable(name));
    }

    void takesWordsForYesAndNo_data()
    {
        const Rows<bool> row;
        for (const char* word : {"true", "YES", " on ", "1"})
            row(word, true);
        for (const char* word : {"False", "no", "off", "0"})
            row(word, false);
    }

    void takesWordsForYesAndNo()
    {
        const auto [answer] = Rows<bool>::current();
        QCOMPARE(taken(key::HideMenuBar, QTest::currentDataTag()).first(), QVariant(answer));
        QCOMPARE(taken(key::PageLayout, "one column").first(), QVariant(1));
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
