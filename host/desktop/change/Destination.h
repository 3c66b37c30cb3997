#pragma once

#include <QString>
#include <QStringList>

namespace host::desktop {

/// Where a run puts its results.
struct Destination
{
    enum class Kind { InPlace, Folder, Suffix };

    Kind kind = Kind::InPlace;
    QString folder;
    QString suffix = QStringLiteral("new");

    /// The folder as it was typed, with the home folder in the place of "~/", and without a slash at its end.
    QString folderPath() const;
    /// Empty, or what is missing before a run can begin; for people.
    QString problem() const;
    /// The program's options.
    /// \param base the folder below which results in a folder keep their paths.
    QStringList arguments(const QString& base) const;
    /// In a sentence: "in place".
    QString inWords() const;

    bool operator==(const Destination&) const = default;
};

} // namespace host::desktop
