#include "StartQuestion.h"

#include "host/desktop/look/PlainLabel.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <unistd.h>

namespace host::desktop {

namespace {

/// How many of the results are there already.
int replaced(Workbench& workbench)
{
    const QString base = workbench.base();
    int count = 0;
    for (const DocumentId id : workbench.targets()) {
        const DocumentRecord* record = workbench.table().find(id);
        if (record == nullptr || !record->check || record->check->isTrouble())
            continue;
        const QByteArray result = workbench.runOrder().resultOf(record->path, base);
        count += result != record->path && access(result.constData(), F_OK) == 0 ? 1 : 0;
    }
    return count;
}

} // namespace

StartQuestion::StartQuestion(Workbench& workbench, QWidget* parent) : QDialog(parent)
{
    setObjectName("startQuestion");
    setWindowTitle(tr("Start"));
    auto* what = new PlainLabel(question(workbench), this);
    QFont font = what->font();
    font.setWeight(QFont::DemiBold);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    what->setFont(font);
    what->setWordWrap(true);
    auto* more = new PlainLabel(details(workbench), this);
    more->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* start = buttons->addButton(tr("&Start"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    start->setObjectName("startButton");
    start->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 18, 20, 16);
    column->setSpacing(12);
    column->addWidget(what);
    column->addWidget(more);
    column->addStretch();
    column->addWidget(buttons);
    setMinimumWidth(440);
}

QString StartQuestion::question(const Workbench& workbench)
{
    const Workbench::Counts counts = workbench.counts();
    const Destination& where = workbench.destination();
    switch (where.kind) {
    case Destination::Kind::InPlace:
        return tr("%Ln document(s) will be changed in place.", "", counts.willChange);
    case Destination::Kind::Folder:
        return tr("%Ln result(s) will be written to %1.", "", counts.willChange + counts.asAsked)
            .arg(where.folderPath());
    case Destination::Kind::Suffix:
        return tr("%Ln result(s) will be written beside the documents, with “-%1” added to their names.", "",
                  counts.willChange + counts.asAsked)
            .arg(where.suffix);
    }
    return {};
}

QString StartQuestion::details(Workbench& workbench)
{
    const Workbench::Counts counts = workbench.counts();
    QStringList lines{workbench.draft().inWords()};
    if (const int files = replaced(workbench); files > 0)
        lines += tr("%Ln file(s) there will be replaced.", "", files);
    if (workbench.destination().kind == Destination::Kind::InPlace)
        lines += tr("What the run changes can be undone.");
    else
        lines += tr("The documents themselves stay as they are.");
    if (counts.cannot > 0)
        lines += tr("%Ln document(s) cannot be changed and stay as they are.", "", counts.cannot);
    return lines.join('\n');
}

} // namespace host::desktop
