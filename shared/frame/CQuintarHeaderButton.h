#pragma once

#include <QToolButton>

/// A button of the dialog frame's header. A double click on it neither clicks twice nor reaches the header.
class CQuintarHeaderButton : public QToolButton
{
public:
    explicit CQuintarHeaderButton(QWidget* parent = nullptr);
    ~CQuintarHeaderButton() override;

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
