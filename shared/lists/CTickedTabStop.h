#pragma once

#include <QObject>

class QRadioButton;

/// Lets Tab and Shift+Tab reach a radio button only while it is ticked, so that whoever arrives among several
/// stands on the choice that is made. Qt does so only once one of them has had the focus. Of several buttons
/// each needs one of these. GUI thread.
///
///     new CTickedTabStop(ui.newListButton);
class CTickedTabStop : public QObject
{
    Q_OBJECT

public:
    /// Sets the button's focus policy, now and whenever it is ticked or cleared.
    /// \param button owns the object.
    explicit CTickedTabStop(QRadioButton* button);

public slots:
    /// Follows the button's toggled().
    void on_Toggled(bool ticked);

private:
    QRadioButton* m_button;
};
