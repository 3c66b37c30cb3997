#pragma once

#include "host/desktop/workbench/Workbench.h"

#include <QDialog>

namespace host::desktop {

/// Says once what a run will do to how many documents, and begins it only then.
class StartQuestion : public QDialog
{
    Q_OBJECT

public:
    explicit StartQuestion(Workbench& workbench, QWidget* parent = nullptr);

    /// What it asks, for example "38 documents will be changed in place."
    static QString question(const Workbench& workbench);
    static QString details(Workbench& workbench);
};

} // namespace host::desktop
