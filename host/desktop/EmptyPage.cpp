#include "EmptyPage.h"

#include "host/desktop/look/Drawings.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace host::desktop {

namespace {

const QSize pictureSize(340, 220);

} // namespace

EmptyPage::EmptyPage(QWidget* parent) : QWidget(parent), m_picture(new QLabel(this)), m_more(new QLabel(this))
{
    auto* title = new QLabel(tr("Say how PDF documents open"), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    m_more->setText(tr("With their bookmarks, with their title, at page 1.\n"
                       "Drop documents or folders here. Nothing is changed before you start it."));
    m_picture->setAccessibleName(tr("A document that opens with its bookmarks and its title"));
    for (QLabel* each : {m_picture, title, m_more})
        each->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(14);
    column->addStretch(2);
    column->addWidget(m_picture);
    column->addSpacing(10);
    column->addWidget(title);
    column->addWidget(m_more);
    column->addSpacing(10);
    column->addLayout(buttons());
    column->addStretch(3);
    draw();
}

QLayout* EmptyPage::buttons()
{
    auto* files = new QPushButton(tr("&Add Files…"), this);
    auto* folder = new QPushButton(tr("Add F&older…"), this);
    files->setObjectName("addFilesButton");
    folder->setObjectName("addFolderButton");
    files->setDefault(true);
    connect(files, &QPushButton::clicked, this, &EmptyPage::addFiles);
    connect(folder, &QPushButton::clicked, this, &EmptyPage::addFolder);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* each : {files, folder}) {
        each->setMinimumWidth(150);
        each->setMinimumHeight(34);
        row->addWidget(each);
    }
    row->addStretch();
    row->setSpacing(12);
    return row;
}

void EmptyPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        draw();
    QWidget::changeEvent(event);
}

void EmptyPage::draw()
{
    m_picture->setPixmap(drawings::emptyList(palette(), pictureSize, devicePixelRatioF()));
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, drawings::quietText(palette()));
    m_more->setPalette(quiet);
}

} // namespace host::desktop
