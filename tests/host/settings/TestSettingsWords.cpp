#include "EditInitialView/InitialViewSettings.h"
#include "host/settings/SettingsWords.h"

#include <QtTest>

using namespace initialview;

namespace {

/// What stands beside a label, empty where there is no such line.
QString told(const host::SettingsMap& settings, const char* label)
{
    for (const QString& line : QString::fromStdString(host::settingsInWords(settings)).split('\n'))
        if (line.startsWith("  " + QString(label) + "  "))
            return line.mid(2 + int(qstrlen(label))).trimmed();
    return {};
}

QString wordsFor(const Key& key, int number)
{
    if (key.type == ValueType::Flag)
        return number == 1 ? "yes" : "no";
    return key.rows.empty() ? QString::number(number) : QString(key.rows[std::size_t(number)]);
}

} // namespace

class TestSettingsWords : public QObject
{
    Q_OBJECT

private slots:
    void tellsEveryKeyOfAGroupThatIsOn()
    {
        for (const Key& key : keys) {
            if (key.group == nullptr)
                continue;
            for (const int number : {key.lowest, key.highest}) {
                const host::SettingsMap settings{
                    {key::OpenToPage, firstPage}, {key.group, true}, {key.name, number}};
                QCOMPARE(told(settings, key.label), wordsFor(key, number));
                QCOMPARE(told({{key.name, number}}, key.label), QString());
            }
        }
    }

    void tellsOfAGroupThatIsOff()
    {
        QCOMPARE(told({}, "Layout and Magnification"), QString("unchanged"));
        QCOMPARE(told({}, "Viewer Preferences"), QString("unchanged"));
    }
};

QTEST_GUILESS_MAIN(TestSettingsWords)
#include "TestSettingsWords.moc"
