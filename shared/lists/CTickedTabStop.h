#pragma once

#include <QObject>

class QRadioButton;

/// Lets Tab and Shift+Tab reach a radio button only while it is ticked, so that whoever arrives among several
/// stands on the choice that is made. Qt does so only once one of them has had the focus.
class CTickedTabStop : public QObject
{
    Q_OBJECT

public:
    /// \param button owns the object.
    explicit CTickedTabStop(QRadioButton* button);

public slots:
    void on_Toggled(bool ticked);

private:
    QRadioButton* m_button;
};
