#pragma once

#include "host/desktop/actions/ActionTable.h"
#include "host/desktop/list/FilterBar.h"

#include <QPushButton>
#include <QToolButton>

namespace host::desktop {

/// Above the list: adding and removing, which documents are shown, and the start.
class ToolBar : public QWidget
{
    Q_OBJECT

public:
    ToolBar(Workbench& workbench, ActionTable& actions, QWidget* parent = nullptr);

    FilterBar* filter() { return m_filter; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void follow();
    void draw();

    Workbench& m_workbench;
    ActionTable& m_actions;
    QToolButton* m_add;
    QPushButton* m_remove;
    FilterBar* m_filter;
    QPushButton* m_start;
};

} // namespace host::desktop
