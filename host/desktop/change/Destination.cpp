#include "Destination.h"

#include <QCoreApplication>
#include <QDir>

namespace host::desktop {

QString Destination::folderPath() const
{
    QString path = folder == "~" || folder.startsWith("~/") ? QDir::homePath() + folder.mid(1) : folder;
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

QString Destination::problem() const
{
    if (kind == Kind::Folder && folder.trimmed().isEmpty())
        return QCoreApplication::translate("Destination", "Choose the folder for the results.");
    if (kind == Kind::Folder && !QDir::isAbsolutePath(folderPath()))
        return QCoreApplication::translate("Destination", "The folder has to begin with a slash or with ~/.");
    if (kind == Kind::Suffix && suffix.trimmed().isEmpty())
        return QCoreApplication::translate("Destination", "Say what is added to the names.");
    if (kind == Kind::Suffix && suffix.contains('/'))
        return QCoreApplication::translate("Destination", "What is added to the names cannot hold a slash.");
    if (kind == Kind::Suffix && (suffix.startsWith('-') || suffix.endsWith(".pdf", Qt::CaseInsensitive)))
        return QCoreApplication::translate("Destination",
                                           "Leave out the hyphen and .pdf: they are added anyway.");
    return {};
}

QStringList Destination::arguments(const QString& base) const
{
    switch (kind) {
    case Kind::InPlace:
        return {"--in-place"};
    case Kind::Folder:
        return {"--output", folderPath() + "/", "--base", base}; // a folder, whatever its name ends in
    case Kind::Suffix:
        return {"--suffix", suffix};
    }
    return {};
}

QString Destination::inWords() const
{
    switch (kind) {
    case Kind::InPlace:
        return QCoreApplication::translate("Destination", "in place");
    case Kind::Folder:
        return QCoreApplication::translate("Destination", "to %1")
            .arg(QDir::toNativeSeparators(folderPath()));
    case Kind::Suffix:
        return QCoreApplication::translate("Destination", "beside them, as name-%1.pdf").arg(suffix);
    }
    return {};
}

} // namespace host::desktop
