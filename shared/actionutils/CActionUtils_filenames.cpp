#include "CActionUtils.h"

#include "SaturatedInt.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QTextCodec>
#include <QTextEdit>

#include <cmath>
#include <vector>

QLabel* CActionUtils::mNavBarLabel = nullptr;
QTextEdit* CActionUtils::mInfoLabel = nullptr;

namespace {

const QString helpFolder = QStringLiteral(":/Quintar/Resources/HelpFiles/");
const QString toolFolder = QStringLiteral(":/Quintar/Resources/Tools/");

/// A target belongs to the host, which may end it before the action asks for it again. Of one that was not
/// given to SetTargetLabels the end stays unknown.
template <class Widget>
struct Watch
{
    Widget* given = nullptr;
    QPointer<Widget> living;

    void begin(Widget* target)
    {
        given = target;
        living = target;
    }
    bool isUsable(const Widget* target) const { return target != nullptr && (target != given || living); }
};

Watch<QLabel> navBarWatch;
Watch<QTextEdit> infoWatch;

/// A folder on the way down, with what is left to visit in it.
struct OpenFolder
{
    explicit OpenFolder(QDir dir)
    {
        dir.setSorting(QDir::Name);
        dir.setFilter(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
        path = dir.absolutePath();
        entries = dir.entryList();
    }

    QString nextPath() { return path + "/" + entries.at(next++); }

    QString path;
    QStringList entries;
    int next = 0;
};

} // namespace

QStringList CActionUtils::SearchFilesInDir(QDir dir, QStringList suffixes, bool recursive)
{
    QStringList found;
    std::vector<OpenFolder> open{OpenFolder(dir)};
    while (!open.empty()) {
        OpenFolder& folder = open.back();
        if (folder.next == folder.entries.size()) {
            open.pop_back();
            continue;
        }
        const QFileInfo entry(folder.nextPath());
        if (entry.isSymLink())
            continue;
        if (entry.isDir()) {
            if (recursive)
                open.emplace_back(QDir(entry.filePath()));
        } else if (suffixes.contains(entry.suffix(), Qt::CaseInsensitive)) {
            found.append(entry.filePath().replace('\\', '/'));
        }
    }
    return found;
}

QString CActionUtils::GetStringWithLeadingZeroesFromNumber(int number, int length)
{
    return GetStringWithLeadingZeroesFromString(QString::number(number), length);
}

QString CActionUtils::GetStringWithLeadingZeroesFromString(QString text, int length)
{
    return text.rightJustified(length, '0');
}

QString CActionUtils::AppendCopyNumberToFilename(QString path)
{
    const int dot = path.lastIndexOf('.');
    const int place = dot < 0 ? path.size() : dot;
    QString candidate = path;
    for (int number = 1; QFile::exists(candidate); ++number) {
        candidate = path;
        candidate.insert(place, " (" + QString::number(number) + ")");
    }
    return candidate;
}

void CActionUtils::FixStringForFilename(QString* text)
{
    static const QString forbidden = QStringLiteral("\t\n\r<>:\"/\\|?*");
    QString fixed;
    for (const QChar character : text->trimmed()) {
        if (!forbidden.contains(character))
            fixed.append(character);
    }
    *text = fixed;
}

QString CActionUtils::ReplaceEnvironmentPaths(QString path)
{
    static const QString placeholder = QStringLiteral("%ALLUSERSPROFILE%");
    if (!path.contains(placeholder))
        return path;
    const QString home = QDir::homePath().replace('\\', '/');
    QString folder = home.left(home.lastIndexOf('/')) + "/All Users";
    if (folder.contains("Documents and Settings"))
        folder += "/Application Data";
    return path.replace(placeholder, folder + "/");
}

int CActionUtils::Round(double value)
{
    const int below = saturatedInt(std::floor(value));
    return value - below > 0.5 ? saturatedInt(std::ceil(value)) : below;
}

void CActionUtils::SetTargetLabels(QLabel* navBarLabel, QTextEdit* infoLabel)
{
    mNavBarLabel = navBarLabel;
    mInfoLabel = infoLabel;
    navBarWatch.begin(navBarLabel);
    infoWatch.begin(infoLabel);
}

void CActionUtils::SetCurrentSection(QString text)
{
    if (navBarWatch.isUsable(mNavBarLabel))
        mNavBarLabel->setText(text);
}

void CActionUtils::SetHelpHtml(QString html)
{
    if (infoWatch.isUsable(mInfoLabel))
        mInfoLabel->setText(html);
}

void CActionUtils::SetHelp(QString name)
{
    QByteArray page;
    QFile file(helpFolder + name);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        page = file.readAll();
    SetHelpHtml(QTextCodec::codecForHtml(page)->toUnicode(page));
}

QIcon CActionUtils::GetIconForTool(QString name)
{
    return QIcon(toolFolder + name);
}
