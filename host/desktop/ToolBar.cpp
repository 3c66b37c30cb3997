#include "ToolBar.h"

#include "host/desktop/look/Drawings.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>

namespace host::desktop {

using Id = ActionTable::Id;

ToolBar::ToolBar(Workbench& workbench, ActionTable& actions, QWidget* parent)
    : QWidget(parent), m_workbench(workbench), m_actions(actions), m_add(new QToolButton(this)),
      m_remove(new QPushButton(tr("Re&move"), this)), m_filter(new FilterBar(workbench, this)),
      m_start(new QPushButton(tr("S&tart…"), this))
{
    auto* menu = new QMenu(m_add);
    for (const Id id : {Id::AddFiles, Id::AddFolder, Id::Paste})
        menu->addAction(actions[id]);
    m_add->setObjectName("addButton");
    m_remove->setObjectName("removeButton");
    m_start->setObjectName("startButton");
    m_add->setText(tr("&Add"));
    m_add->setAccessibleName(tr("Add"));
    m_add->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_add->setPopupMode(QToolButton::InstantPopup);
    m_add->setMenu(menu);
    m_start->setDefault(true);
    draw();
    m_add->setMinimumHeight(m_start->sizeHint().height());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(8);
    row->addWidget(m_add);
    row->addWidget(m_remove);
    row->addSpacing(12);
    row->addWidget(m_filter, 1);
    row->addSpacing(12);
    row->addWidget(m_start);
    connect(m_remove, &QPushButton::clicked, actions[Id::Remove], &QAction::trigger);
    connect(m_start, &QPushButton::clicked, actions[Id::Start], &QAction::trigger);
    connect(actions[Id::Start], &QAction::changed, this, &ToolBar::follow);
    connect(&workbench, &Workbench::targetsChanged, this, &ToolBar::follow);
    follow();
}

void ToolBar::follow()
{
    m_remove->setEnabled(m_actions[Id::Remove]->isEnabled() && !m_workbench.order().selected().isEmpty());
    m_start->setEnabled(m_actions[Id::Start]->isEnabled());
    m_start->setToolTip(m_actions[Id::Start]->toolTip());
}

void ToolBar::draw()
{
    m_add->setIcon(drawings::icon(drawings::Sign::Add, palette()));
    m_remove->setIcon(drawings::icon(drawings::Sign::Remove, palette()));
    m_start->setIcon(drawings::icon(drawings::Sign::Start, palette()));
}

void ToolBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        draw();
    QWidget::changeEvent(event);
}

} // namespace host::desktop
