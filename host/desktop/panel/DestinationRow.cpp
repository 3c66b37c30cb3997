#include "DestinationRow.h"

#include "host/desktop/look/Drawings.h"
#include "host/desktop/look/PlainLabel.h"

#include "shared/frame/CWheelFocusFilter.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace host::desktop {

DestinationRow::DestinationRow(QWidget* parent)
    : QWidget(parent), m_kind(new QComboBox(this)), m_folder(new QLineEdit(this)),
      m_choose(new QToolButton(this)), m_suffix(new QLineEdit(this)), m_note(new PlainLabel(this))
{
    nameParts();
    m_kind->addItems({tr("The documents themselves"), tr("A folder"), tr("Beside them, under another name")});
    new CWheelFocusFilter(m_kind);
    m_kind->setAccessibleName(tr("Write to"));
    m_kind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_kind->setWhatsThis(
        tr("A run changes the documents themselves, which can be undone, or leaves them as they are and "
           "writes its results into a folder or beside them."));
    m_folder->setAccessibleName(tr("Folder for the results"));
    m_folder->setPlaceholderText(tr("Folder for the results"));
    m_choose->setText(tr("Choose…"));
    m_choose->setAccessibleName(tr("Choose the folder for the results"));
    m_choose->setToolTip(m_choose->accessibleName());
    m_suffix->setAccessibleName(tr("Added to the names"));
    m_note->setWordWrap(true);
    layOutParts();
    connect(m_kind, QOverload<int>::of(&QComboBox::activated), this, [this] {
        show();
        emit edited(destination());
    });
    for (QLineEdit* each : {m_folder, m_suffix})
        connect(each, &QLineEdit::textEdited, this, [this] {
            show();
            emit edited(destination());
        });
    connect(m_choose, &QToolButton::clicked, this, &DestinationRow::folderWanted);
    show();
}

void DestinationRow::nameParts()
{
    m_kind->setObjectName("destination");
    m_folder->setObjectName("destinationFolder");
    m_choose->setObjectName("destinationChoose");
    m_suffix->setObjectName("destinationSuffix");
    m_note->setObjectName("destinationNote");
}

void DestinationRow::layOutParts()
{
    auto* where = new QHBoxLayout;
    where->setSpacing(6);
    where->addWidget(m_folder);
    where->addWidget(m_choose);
    where->addWidget(m_suffix);
    auto* label = PlainLabel::heading(tr("&Write to"), this);
    label->setBuddy(m_kind); // screen readers take it from a label beside it only
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_kind, 0, 1);
    grid->addLayout(where, 1, 1);
    grid->addWidget(m_note, 2, 1);
    grid->setColumnStretch(1, 1);
}

Destination DestinationRow::destination() const
{
    return {static_cast<Destination::Kind>(m_kind->currentIndex()), m_folder->text(), m_suffix->text()};
}

void DestinationRow::setDestination(const Destination& destination)
{
    m_kind->setCurrentIndex(static_cast<int>(destination.kind));
    if (m_folder->text() != destination.folder) // what is being typed keeps its cursor
        m_folder->setText(destination.folder);
    if (m_suffix->text() != destination.suffix)
        m_suffix->setText(destination.suffix);
    show();
}

void DestinationRow::show()
{
    const Destination now = destination();
    m_folder->setVisible(now.kind == Destination::Kind::Folder);
    m_choose->setVisible(now.kind == Destination::Kind::Folder);
    m_suffix->setVisible(now.kind == Destination::Kind::Suffix);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, drawings::quietText(palette()));
    m_note->setPalette(quiet);
    const QString problem = now.problem();
    if (!problem.isEmpty())
        m_note->setText(problem);
    else if (now.kind == Destination::Kind::InPlace)
        m_note->setText(tr("The run can be undone."));
    else if (now.kind == Destination::Kind::Folder)
        m_note->setText(tr("The documents stay as they are."));
    else
        m_note->setText(tr("manual.pdf becomes manual-%1.pdf.").arg(now.suffix));
}

} // namespace host::desktop
