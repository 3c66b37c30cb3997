#pragma once

#include "host/desktop/workbench/Workbench.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace host::desktop {

/// Which documents are shown: a filter in words, a search, and how many that leaves.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(Workbench& workbench, QWidget* parent = nullptr);

    void show(DocumentFilter::Kind kind);
    void clear();
    QLineEdit* search() { return m_search; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillKinds();
    void apply();
    void tell();

    Workbench& m_workbench;
    QComboBox* m_kind;
    QLineEdit* m_search;
    QLabel* m_count;
    QToolButton* m_all;
    QAction* m_sign = nullptr;
    QTimer m_soon;
};

} // namespace host::desktop
