#pragma once

#include <QObject>

class QAbstractButton;

/// Tells a button's shortcut at the end of its tool tip, as "Add to Favorites/Save settings (Ctrl+D)". The
/// button's own tool tip stays what it is; a button without one shows its accessible name instead.
class CShortcutToolTip : public QObject
{
public:
    /// \param button watched from now on; it owns the object.
    explicit CShortcutToolTip(QAbstractButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractButton* m_button;
};
