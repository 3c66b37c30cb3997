#pragma once

#include <QObject>

class QAbstractButton;

/// Tells a button's shortcut at the end of its tool tip, as "Add to Favorites/Save settings (Ctrl+D)". The
/// button's own tool tip stays what it is; a button without one shows its accessible name instead, and one
/// without a shortcut its text alone. Text and shortcut are read when the tip is shown, so they may change.
/// GUI thread.
///
///     new CShortcutToolTip(button);
class CShortcutToolTip : public QObject
{
public:
    /// \param button watched from now on; it owns the object.
    explicit CShortcutToolTip(QAbstractButton* button);

    /// Answers the button's tool tip events; all others pass.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractButton* m_button;
};
