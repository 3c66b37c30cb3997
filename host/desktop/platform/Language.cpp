#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace host::desktop::language {

namespace {

bool install(const QLocale& locale, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    return translator->load(locale, name, "_", folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void choose()
{
    const QString own = ":/translations";
    install(QLocale(QLocale::English), "quintar-window", own); // plural forms
    if (QLocale().language() == QLocale::English || QLocale().language() == QLocale::C)
        return;
    install(QLocale(), "qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(QLocale(), "quintar-window", own);
}

} // namespace host::desktop::language
