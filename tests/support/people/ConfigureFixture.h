#pragma once

#include "EditInitialView/InitialViewSettings.h"
#include "host/cli/ConfigureCommand.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/TemporaryHome.h"
#include "support/people/Mute.h"
#include "support/people/Person.h"
#include "support/program/CommandRun.h"
#include "support/program/ProgramRun.h"

/// What tests of "quintar configure" share: a user with a document "a.pdf", and a person at the window. Tests
/// derive from it besides QObject.
class ConfigureFixture
{
protected:
    using Map = QMap<QString, QVariant>;

    void begin() const
    {
        muteFrameWarnings();
        m_home.reset();
        putDocument("/PageMode /UseThumbs /PageLayout /TwoPageRight /OpenAction [ 4 0 R /FitH 792 ] "
                    "/ViewerPreferences << /HideMenubar true /CenterWindow true >>");
    }

    QString path(const QString& name) const { return m_home.filePath(name); }
    void putDocument(const std::string& view) const
    {
        QVERIFY(writeFile(path("a.pdf"), QByteArray::fromStdString(PdfBuilder::simple(view))));
    }
    QVariant stored(const QString& file, const QString& key) const { return storedValue(path(file), key); }

    static CommandRun configure(const QStringList& words, const person::Answer& answer = person::pressOk)
    {
        person::whenOpens("CPrefsDialog", answer);
        return CommandRun(host::ConfigureCommand(), words);
    }

    /// The same, where the person sets widgets by their settings before OK.
    static CommandRun configure(const QStringList& words, const Map& choices)
    {
        return configure(words, [&choices](QDialog& dialog) {
            for (auto each = choices.begin(); each != choices.end(); ++each) {
                auto* widget = person::widget<QWidget>(dialog, qPrintable(each.key()));
                const char* property = widget->inherits("QComboBox")  ? "currentIndex"
                                       : widget->inherits("QSpinBox") ? "value"
                                                                      : "checked";
                QVERIFY(widget->setProperty(property, each.value()));
            }
            person::pressOk(dialog);
        });
    }

private:
    TemporaryHome m_home;
};
