#pragma once

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
    }
};

} // namespace host::desktop
