#pragma once

#include <QComboBox>

/// A list that, closed, leaves out the middle of a text that it has no room for, as of texts that differ in
/// their first and last words.
class CElidedComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

    /// Narrower than its longest text.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
