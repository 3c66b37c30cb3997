#pragma once

#include <QTextBrowser>
#include <QWidget>

namespace host::desktop {

/// Shows a page of help beside the window.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// The action's page about settings and viewers.
    void showSettings();
    void showPage(const QString& html);

private:
    void bringUp();

    QTextBrowser* m_text;
};

} // namespace host::desktop
