#pragma once

#include <QToolButton>

/// A button of the dialog frame's header. A double click on it neither clicks twice nor reaches the header,
/// which would take it for its own. GUI thread.
///
/// It has no meta object of its own: style sheets and QObject::inherits() know it as the QToolButton that it
/// is, so the frame's style sheet holds for it.
class CQuintarHeaderButton : public QToolButton
{
public:
    /// \param parent owns the button; image, text and what a click does are the caller's to set.
    explicit CQuintarHeaderButton(QWidget* parent = nullptr);
    ~CQuintarHeaderButton() override;

protected:
    /// Accepts the event and does nothing: the first press has clicked already.
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
