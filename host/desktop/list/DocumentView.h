#pragma once

#include "host/change/ViewChange.h"
#include "host/desktop/rows/DocumentOrder.h"

#include <QSettings>
#include <QTableView>

namespace host::desktop {

/// The list of documents: columns that are chosen, moved and remembered, rows that keep their place.
class DocumentView : public QTableView
{
    Q_OBJECT

public:
    DocumentView(DocumentOrder& order, QSettings& settings, QWidget* parent = nullptr);

    void saveColumns();
    /// Shows the columns that tell what is about to be changed; they stay.
    void showColumnsOf(const ViewChange& change);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

signals:
    /// Where a menu for the selected documents is wanted.
    void menuWanted(const QPoint& place);

private:
    void fitRows();
    void restoreColumns();
    void keepPlace();
    void restorePlace();

    DocumentOrder& m_order;
    QSettings& m_settings;
    DocumentId m_top = 0;
    ViewChange m_told;
};

} // namespace host::desktop
