#include "HelpWindow.h"

#include "host/desktop/look/FirstSize.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace host::desktop {

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent, Qt::Window), m_text(new QTextBrowser(this))
{
    setObjectName("help");
    setWindowTitle(tr("Help - Quintar"));
    m_text->setAccessibleName(tr("Help"));
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->document()->setDocumentMargin(16);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_text);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    resize(firstSize(*this, {720, 760}));
}

void HelpWindow::showSettings()
{
    m_text->setSource(QUrl("qrc:/Quintar/Resources/HelpFiles/Action_EditInitialView.html"));
    bringUp();
}

void HelpWindow::showPage(const QString& html)
{
    m_text->setSource(QUrl());
    m_text->setHtml(html);
    bringUp();
}

void HelpWindow::bringUp()
{
    show();
    raise();
    activateWindow();
}

} // namespace host::desktop
