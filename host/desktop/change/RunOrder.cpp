#include "RunOrder.h"

#include "host/desktop/texts/PlainText.h"
#include "host/desktop/texts/ViewTexts.h"
#include "host/files/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace host::desktop {

namespace {

const int mostNamed = 20;

/// What is no text, or would lead a terminal or its reader astray: some control characters end a paste or begin the
/// command before it is read.
bool isPlain(const QByteArray& word)
{
    const QString text = QString::fromUtf8(word);
    return text.toUtf8() == word && plaintext::shown(text) == text;
}

/// As a shell understands it: in single quotes if need be, and what is not plain by its bytes.
QString quoted(const QByteArray& word)
{
    static const QRegularExpression plain("^[A-Za-z0-9_@%+=:,./-]+$");
    if (const QString text = QString::fromUtf8(word); isPlain(word)) {
        QString inner = text;
        return plain.match(text).hasMatch() ? text : "'" + inner.replace("'", "'\\''") + "'";
    }
    QString bytes;
    for (const char each : word)
        bytes += QStringLiteral("\\x%1").arg(uchar(each), 2, 16, QLatin1Char('0'));
    return "$'" + bytes + "'";
}

/// Many names follow the command, a line each, so that it can be read.
void name(const QVector<QByteArray>& paths, bool isInputFree, QStringList& words, QStringList& lines)
{
    QStringList below;
    for (const QByteArray& path : paths)
        if (isInputFree && paths.size() > mostNamed && isPlain(path))
            below += QString::fromUtf8(path);
        else
            words += quoted(path);
    if (below.isEmpty())
        return;
    words += "--files-from - <<'END'";
    lines += below + QStringList{"END"};
}

/// \param folder ends in a slash, as what is returned does.
QByteArray above(const QByteArray& folder)
{
    return folder.left(folder.lastIndexOf('/', -2) + 1);
}

bool isTyped(ViewEntry entry, const std::optional<ViewValue>& before, const std::optional<ViewValue>& after)
{
    using viewentries::Kind;
    const Kind kind = viewentries::describe(entry).kind;
    const bool areNumbers =
        before && after && std::holds_alternative<int>(*before) && std::holds_alternative<int>(*after);
    return kind == Kind::Text || kind == Kind::Language ||
           (areNumbers && (kind == Kind::Page || kind == Kind::Count));
}

} // namespace

RunOrder::Difference RunOrder::differenceFrom(const RunOrder& other) const
{
    if (destination != other.destination)
        return {QCoreApplication::translate("RunOrder", "Write to"),
                destination.kind == other.destination.kind};
    if (draft.stored() || other.draft.stored())
        return {};
    Difference difference;
    int count = 0;
    for (const viewentries::Description& each : viewentries::all()) {
        const auto& before = other.draft.view()[each.entry];
        const auto& after = draft.view()[each.entry];
        const bool isTitleKept =
            each.entry == ViewEntry::Title && draft.view().keepsTitles() != other.draft.view().keepsTitles();
        if (before == after && !isTitleKept)
            continue;
        difference = {viewtexts::nameOf(each.entry), isTyped(each.entry, before, after)};
        ++count;
    }
    return count == 1 ? difference : Difference();
}

QStringList RunOrder::arguments(const QString& base) const
{
    return draft.arguments() + destination.arguments(base);
}

QString RunOrder::problem(const QString& base) const
{
    const bool isSource = destination.kind == Destination::Kind::Folder &&
                          QDir::cleanPath(destination.folderPath()) == QDir::cleanPath(base);
    return isSource ? QCoreApplication::translate(
                          "RunOrder", "The documents themselves lie in this folder. Choose another one, or "
                                      "write to the documents themselves.")
                    : destination.problem();
}

QString RunOrder::commonFolder(const DocumentTable& table, const DocumentTable::Ids& ids)
{
    QByteArray common;
    bool isFirst = true;
    for (const DocumentId id : ids) {
        const DocumentRecord* record = table.find(id);
        if (record == nullptr)
            continue;
        const QByteArray folder = record->path.left(record->path.lastIndexOf('/') + 1);
        if (isFirst)
            common = folder;
        isFirst = false;
        while (!common.isEmpty() && !folder.startsWith(common))
            common = above(common);
    }
    while (QFile::encodeName(QFile::decodeName(common)) != common) // no option could hold it
        common = above(common);
    return QFile::decodeName(common.isEmpty() ? QByteArray("/") : common);
}

QByteArray RunOrder::resultOf(const QByteArray& path, const QString& base) const
{
    switch (destination.kind) {
    case Destination::Kind::InPlace:
        return path;
    case Destination::Kind::Folder:
        return QFile::encodeName(destination.folderPath()) + "/" + path.mid(QFile::encodeName(base).size());
    case Destination::Kind::Suffix: {
        const auto stem = static_cast<int>(endOfStem(path.toStdString()));
        return path.left(stem) + "-" + QFile::encodeName(destination.suffix) + path.mid(stem);
    }
    }
    return path;
}

std::map<RunOrder::Kind, DocumentTable::Ids> RunOrder::kindsOf(const DocumentTable& table,
                                                               const DocumentTable::Ids& ids)
{
    std::map<Kind, DocumentTable::Ids> kinds;
    for (const DocumentId id : ids)
        if (const DocumentRecord* record = table.find(id))
            kinds[{record->password, record->howSigned}].append(id);
    return kinds;
}

QStringList RunOrder::argumentsOf(DocumentRecord::Signed howSigned)
{
    switch (howSigned) {
    case DocumentRecord::Signed::Refuse:
        break;
    case DocumentRecord::Signed::Append:
        return {"--signed", "append"};
    case DocumentRecord::Signed::AppendCertified:
        return {"--signed", "append-certified"};
    }
    return {};
}

/// On one line, so that a password that is asked for is not taken from the command behind.
QString RunOrder::commandLine(const DocumentTable& table, const DocumentTable::Ids& ids) const
{
    const QString base = commonFolder(table, ids);
    QStringList commands;
    QStringList lines;
    for (const auto& [kind, members] : kindsOf(table, ids)) {
        QStringList words{"quintar", "run"};
        for (const QString& word : arguments(base) + argumentsOf(kind.second))
            words += quoted(QFile::encodeName(word));
        if (kind.first >= 0)
            words += "--password-file -";
        QVector<QByteArray> paths;
        for (const DocumentId id : members)
            paths += table.find(id)->path;
        name(paths, kind.first < 0, words, lines);
        commands += words.join(' ');
    }
    return (QStringList{commands.join("; ")} + lines).join('\n');
}

} // namespace host::desktop
