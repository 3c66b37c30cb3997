#pragma once

#include <QEvent>
#include <QLabel>

namespace host::desktop {

/// A label for words that others chose, as titles, names and reasons: it never takes them for markup, which could read
/// files and take up memory without bound.
class PlainLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PlainLabel(QWidget* parent = nullptr) : PlainLabel(QString(), parent) {}
    explicit PlainLabel(const QString& text, QWidget* parent = nullptr) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setText(text);
        align();
    }

    /// What stands above or before a part of the window.
    static PlainLabel* heading(const QString& text, QWidget* parent)
    {
        auto* label = new PlainLabel(text, parent);
        QFont font = label->font();
        font.setWeight(QFont::DemiBold);
        label->setFont(font);
        return label;
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            align();
        QLabel::changeEvent(event);
    }

private:
    /// By the window's direction: by itself a label goes by that of its text.
    void align()
    {
        const Qt::Alignment side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
        setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute | side);
    }
};

} // namespace host::desktop
