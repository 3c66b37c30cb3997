#include "Language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace host::desktop::language {

namespace {

const QString own = QStringLiteral(":/translations/quintar-window_");

void install(const QString& file)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file))
        QCoreApplication::installTranslator(translator);
    else
        delete translator; // Qt's texts are a package of their own
}

} // namespace

QString firstSpoken(const QStringList& wanted)
{
    for (const QString& each : wanted)
        if (QString language = each.section('-', 0, 0).section('_', 0, 0);
            QFile::exists(own + language + ".qm"))
            return language;
    return QStringLiteral("en");
}

void speak(const QString& language)
{
    install(own + "en.qm"); // plural forms, for what another language lacks as well
    if (language == "en")
        return;
    install(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_" + language + ".qm");
    install(own + language + ".qm");
}

void choose()
{
    speak(firstSpoken(QLocale::system().uiLanguages()));
}

} // namespace host::desktop::language
