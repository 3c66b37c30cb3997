#include "CQuintarHeaderButton.h"

#include <QMouseEvent>

CQuintarHeaderButton::CQuintarHeaderButton(QWidget* parent) : QToolButton(parent) {}

CQuintarHeaderButton::~CQuintarHeaderButton() = default;

void CQuintarHeaderButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}
