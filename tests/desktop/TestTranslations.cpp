#include "host/desktop/actions/ActionTable.h"
#include "host/desktop/platform/Language.h"

#include <QMenuBar>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace host::desktop;

namespace {

struct Message
{
    QString source;
    /// One, or one for each plural form.
    QStringList texts;
    bool isUnfinished = false;
};

std::vector<Message> messagesOf(const QString& path)
{
    QFile file(path);
    std::vector<Message> messages;
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader reader(&file);
    for (bool isInTranslation = false; !reader.atEnd();) {
        reader.readNext();
        if (reader.name() == "translation")
            isInTranslation = reader.isStartElement();
        if (isInTranslation && reader.isCharacters() && !reader.isWhitespace())
            messages.back().texts += reader.text().toString();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == "message")
            messages.emplace_back();
        else if (reader.name() == "source")
            messages.back().source = reader.readElementText();
        else if (reader.name() == "numerusform")
            messages.back().texts += reader.readElementText();
        else if (reader.name() == "translation")
            messages.back().isUnfinished = reader.attributes().value("type") == "unfinished";
    }
    return messages;
}

QStringList placesIn(const QString& text)
{
    static const QRegularExpression place("%(\\d|Ln)");
    QStringList found;
    for (auto each = place.globalMatch(text); each.hasNext();)
        found += each.next().captured();
    found.sort();
    return found;
}

QString mnemonicOf(const QString& text)
{
    const int place = text.indexOf('&');
    return place < 0 ? QString() : text.mid(place + 1, 1).toLower();
}

} // namespace

/// A file of texts for each language but English, which has plural forms alone.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator*>()); }

    void haveAllTextsOfTheSources_data() { languages(); }
    void haveAllTextsOfTheSources()
    {
        QFETCH(QString, language);
        QTemporaryDir folder;
        const QString name = "/quintar-window_" + language + ".ts";
        QVERIFY(QFile::copy(QString(SOURCE_DIR) + "/host/desktop/translations" + name, folder.path() + name));
        QStringList arguments{"-silent", "-no-obsolete", "-locations", "none"};
        if (language == "en")
            arguments += "-pluralonly";
        arguments += {QString(SOURCE_DIR) + "/host/desktop", "-ts", folder.path() + name};
        QCOMPARE(QProcess::execute(LUPDATE_FILE, arguments), 0);
        const std::vector<Message> messages = messagesOf(folder.path() + name);
        QVERIFY(messages.size() > (language == "en" ? 20U : 400U));
        for (const Message& each : messages)
            QVERIFY2(!each.isUnfinished,
                     qPrintable("build the target translations, and translate: " + each.source));
    }

    void sayTheSameWithTheSamePlaces_data() { languages(); }
    void sayTheSameWithTheSamePlaces()
    {
        QFETCH(QString, language);
        for (const Message& each : messagesOf(
                 QString(SOURCE_DIR) + "/host/desktop/translations/quintar-window_" + language + ".ts")) {
            const int forms = each.source.contains("%Ln") && language != "ja" ? 2 : 1;
            QVERIFY2(each.texts.size() == forms, qPrintable(each.source));
            for (const QString& text : each.texts) {
                QVERIFY2(placesIn(text) == placesIn(each.source), qPrintable(text));
                QVERIFY2(mnemonicOf(text).isEmpty() == mnemonicOf(each.source).isEmpty(), qPrintable(text));
                QVERIFY2(text.endsWith(u'…') == each.source.endsWith(u'…'), qPrintable(text));
                QVERIFY2(!text.trimmed().isEmpty(), qPrintable(each.source));
            }
        }
    }

    void translateEachMenuWithKeysOfItsOwn_data() { languages(); }
    void translateEachMenuWithKeysOfItsOwn()
    {
        QFETCH(QString, language);
        QWidget parent;
        ActionTable english(&parent);
        language::speak(language);
        ActionTable actions(&parent);
        QMenuBar bar;
        actions.fill(&bar);
        QVERIFY(areDistinct(bar.actions()));
        for (const QAction* menu : bar.actions())
            QVERIFY2(areDistinct(menu->menu()->actions()), qPrintable(menu->text()));
        for (int id = 0; id <= static_cast<int>(ActionTable::Id::About); ++id) {
            const QAction* action = actions[static_cast<ActionTable::Id>(id)];
            const bool isEnglish = action->text() == english[static_cast<ActionTable::Id>(id)]->text();
            QVERIFY2(isEnglish == (language == "en"), qPrintable(action->text()));
        }
    }

    void speaksTheFirstLanguageThatThereIs()
    {
        QCOMPARE(language::firstSpoken({"xx-YY", "fr-CA", "de"}), QString("fr"));
        QCOMPARE(language::firstSpoken({"ja_JP"}), QString("ja"));
        QCOMPARE(language::firstSpoken({"en-GB", "de"}), QString("en"));
        QCOMPARE(language::firstSpoken({"C"}), QString("en"));
        language::speak("en");
        QCOMPARE(counted(1) + ", " + counted(2), QString("1 document, 2 documents"));
        language::speak("de");
        QCOMPARE(counted(1) + ", " + counted(2), QString("1 Dokument, 2 Dokumente"));
    }

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const char* each : {"en", "de", "es", "fr", "ja"})
            QTest::newRow(each) << each;
    }

    static bool areDistinct(const QList<QAction*>& actions)
    {
        QSet<QString> seen;
        for (const QAction* each : actions) {
            const QString key = mnemonicOf(each->text());
            if (!each->isSeparator() && (key.isEmpty() || seen.contains(key)))
                return false;
            seen.insert(key);
        }
        return true;
    }

    static QString counted(int number)
    {
        return QCoreApplication::translate("host::desktop::FilterBar", "%Ln document(s)", nullptr, number);
    }
};

QTEST_MAIN(TestTranslations)

#include "TestTranslations.moc"
