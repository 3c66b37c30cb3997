#pragma once

#include "host/desktop/change/Destination.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace host::desktop {

/// Where the results go: in place, into a folder, or beside the documents.
class DestinationRow : public QWidget
{
    Q_OBJECT

public:
    explicit DestinationRow(QWidget* parent = nullptr);

    Destination destination() const;
    void setDestination(const Destination& destination);

signals:
    void edited(const host::desktop::Destination& destination);
    void folderWanted();

private:
    void nameParts();
    void layOutParts();
    void show();

    QComboBox* m_kind;
    QLineEdit* m_folder;
    QToolButton* m_choose;
    QLineEdit* m_suffix;
    QLabel* m_note;
};

} // namespace host::desktop
