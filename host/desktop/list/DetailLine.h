#pragma once

#include "host/desktop/texts/ReasonTexts.h"
#include "host/desktop/workbench/Workbench.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace host::desktop {

/// Below the list: what there is to say of the current document, and the buttons that help.
class DetailLine : public QWidget
{
    Q_OBJECT

public:
    explicit DetailLine(Workbench& workbench, QWidget* parent = nullptr);

signals:
    void remedyWanted(host::desktop::reasontexts::Remedy remedy);

private:
    void show();

    Workbench& m_workbench;
    QLabel* m_text;
    QPushButton* m_remedy;
    reasontexts::Remedy m_kind = reasontexts::Remedy::None;
};

} // namespace host::desktop
