#pragma once

#include <QLabel>
#include <QWidget>

namespace host::desktop {

/// Stands in the place of the list while it is empty, and says what the window is for.
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);

signals:
    void addFiles();
    void addFolder();

protected:
    void changeEvent(QEvent* event) override;

private:
    QLayout* buttons();
    void draw();

    QLabel* m_picture;
    QLabel* m_more;
};

} // namespace host::desktop
