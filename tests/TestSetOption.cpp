#include "host/SetOption.h"
#include "host/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

#include <QtTest>

using namespace host;

class TestSetOption : public QObject
{
    Q_OBJECT

private slots:
    void takesEveryKey_data();
    void takesEveryKey();
    void namesTheChoices_data();
    void namesTheChoices();
    void takesEveryRowByNumberAndLabel();
    void lastOneWins();
};

void TestSetOption::takesEveryKey_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<QVariant>("stored");
    const auto row = [](const char* word, const QVariant& stored) {
        QTest::newRow(word) << QByteArray(word) << stored;
    };
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

void TestSetOption::takesEveryKey()
{
    QFETCH(QByteArray, word);
    QFETCH(QVariant, stored);
    SettingsMap map;
    setoption::apply(word.toStdString(), map);
    QCOMPARE(map.size(), 1);
    QCOMPARE(map.firstKey(), QString(word.left(word.indexOf('='))));
    QCOMPARE(map.first(), stored);
    QCOMPARE(map.first().type(), stored.type());
}

void TestSetOption::namesTheChoices_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<QByteArray>("named");
    const auto row = [](const char* word, const char* named) {
        QTest::newRow(word) << QByteArray(word) << QByteArray(named);
    };
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

void TestSetOption::namesTheChoices()
{
    QFETCH(QByteArray, word);
    QFETCH(QByteArray, named);
    SettingsMap map;
    try {
        setoption::apply(word.toStdString(), map);
        QFAIL("accepted");
    } catch (const UsageError& error) {
        QVERIFY2(QByteArray(error.what()).contains(named), error.what());
    }
    QVERIFY(map.isEmpty());
}

void TestSetOption::takesEveryRowByNumberAndLabel()
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

void TestSetOption::lastOneWins()
{
    SettingsMap map;
    setoption::apply("OpenToPageSpinBox=2", map);
    setoption::apply("OpenToPageSpinBox=3", map);
    QCOMPARE(map, (SettingsMap{{"OpenToPageSpinBox", 3}}));
}

QTEST_GUILESS_MAIN(TestSetOption)
#include "TestSetOption.moc"
