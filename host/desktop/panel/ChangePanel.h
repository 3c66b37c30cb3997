#pragma once

#include "DestinationRow.h"
#include "SettingRow.h"

#include "host/desktop/change/ChangeWarnings.h"
#include "host/desktop/workbench/Workbench.h"

#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace host::desktop {

/// The change that is being prepared: for which documents, what is set,
/// where it will disappoint, where the results go.
class ChangePanel : public QWidget
{
    Q_OBJECT

public:
    explicit ChangePanel(Workbench& workbench, QWidget* parent = nullptr);

    DestinationRow* destination() { return m_destination; }
    QToolButton* presets() { return m_presets; }

signals:
    void showWanted(host::desktop::DocumentFilter::Kind kind);
    void configureWanted();
    /// Its settings, one of which has the focus, are about to be disabled.
    void focusLeaves();

private:
    QLayout* makeHead();
    QWidget* makeSettings();
    void addGroup(QVBoxLayout* column, const QString& title, const std::vector<ViewEntry>& entries,
                  bool isOpen);
    QWidget* makeStored();
    void show();
    void showScope();
    void showWarnings(const SelectionSummary& summary);
    void edit(ViewEntry entry, const SettingRow::Value& value);

    Workbench& m_workbench;
    QComboBox* m_scope;
    QToolButton* m_presets;
    QPushButton* m_reset;
    QWidget* m_settings = nullptr;
    QWidget* m_stored = nullptr;
    QLabel* m_storedName = nullptr;
    QLabel* m_storedLines = nullptr;
    QPushButton* m_configure = nullptr;
    QVBoxLayout* m_warnings;
    DestinationRow* m_destination;
    std::vector<SettingRow*> m_rows;
    std::vector<ChangeWarning> m_shownWarnings;
};

} // namespace host::desktop
