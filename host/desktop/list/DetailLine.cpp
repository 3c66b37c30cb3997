#include "DetailLine.h"

#include "host/desktop/look/PlainLabel.h"
#include "host/desktop/rows/RowTexts.h"
#include "host/desktop/texts/PlainText.h"

#include <QFile>

#include <QHBoxLayout>

namespace host::desktop {

namespace {

QString textOf(const DocumentRecord& record)
{
    const Outcome* outcome = record.outcome();
    QString state = rowtexts::stateOf(record);
    if (outcome != nullptr && !outcome->file.isEmpty())
        state = DetailLine::tr("%1, %2").arg(state, plaintext::shown(QFile::decodeName(outcome->file)));
    QString more = rowtexts::reasonOf(record);
    if (outcome != nullptr && more.isEmpty())
        more = rowtexts::differences(*outcome);
    if (outcome != nullptr && !rowtexts::differences(*outcome).isEmpty() && !outcome->note.isEmpty())
        more = rowtexts::differences(*outcome) + " – " + outcome->note;
    return more.isEmpty() ? DetailLine::tr("%1: %2").arg(record.name, state)
                          : DetailLine::tr("%1: %2. %3").arg(record.name, state, more);
}

} // namespace

DetailLine::DetailLine(Workbench& workbench, QWidget* parent)
    : QWidget(parent), m_workbench(workbench), m_text(new PlainLabel(this)), m_remedy(new QPushButton(this))
{
    m_text->setObjectName("detail");
    m_remedy->setObjectName("remedyButton");
    m_text->setAccessibleName(tr("About the current document"));
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setMinimumWidth(1); // a long name is cut off and does not widen the window
    m_text->setMinimumHeight(m_remedy->sizeHint().height());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 12, 6);
    row->addWidget(m_text, 1);
    row->addWidget(m_remedy);
    connect(m_remedy, &QPushButton::clicked, this, [this] { emit remedyWanted(m_kind); });
    connect(&workbench.order(), &DocumentOrder::selectionMoved, this, &DetailLine::show);
    connect(&workbench.table(), &DocumentTable::changed, this, &DetailLine::show);
    connect(&workbench.machine(), &RunMachine::changed, this, &DetailLine::show);
    show();
}

void DetailLine::show()
{
    const DocumentRecord* record = m_workbench.table().find(m_workbench.order().current());
    m_kind = record != nullptr && record->isInTrouble() ? reasontexts::remedyFor(record->reasonCode())
                                                        : reasontexts::Remedy::None;
    m_remedy->setVisible(m_kind != reasontexts::Remedy::None);
    const QString reason = m_kind == reasontexts::Remedy::ShowFolder
                               ? QString()
                               : m_workbench.machine().reasonAgainst(RunMachine::Command::Remove);
    m_remedy->setEnabled(reason.isEmpty());
    m_remedy->setToolTip(reason);
    m_remedy->setText(reasontexts::buttonOf(m_kind));
    m_text->setText(record != nullptr ? textOf(*record) : tr("Select a document to see how it opens."));
    m_text->setAccessibleDescription(m_text->text()); // its name says what it is about
}

} // namespace host::desktop
