#include "FilterBar.h"

#include "host/desktop/look/Drawings.h"

#include <QAbstractItemView>
#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>

namespace host::desktop {

namespace {

const int typingMilliseconds = 120;
const int shortestKind = 14;

} // namespace

FilterBar::FilterBar(Workbench& workbench, QWidget* parent)
    : QWidget(parent), m_workbench(workbench), m_kind(new QComboBox(this)), m_search(new QLineEdit(this)),
      m_count(new QLabel(this)), m_all(new QToolButton(this))
{
    auto* label = new QLabel(tr("&Show:"), this);
    label->setBuddy(m_kind);
    fillKinds();
    m_kind->setObjectName("filter");
    m_search->setObjectName("search");
    m_count->setObjectName("shownCount");
    m_all->setObjectName("showAllButton");
    m_all->setText(tr("Show All"));
    m_all->setToolTip(tr("Shows all documents again (Esc)"));
    m_all->setWhatsThis(m_all->toolTip());
    m_kind->setAccessibleName(tr("Show"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setPlaceholderText(tr("Search name, folder, title"));
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(fontMetrics().averageCharWidth() * 22);
    m_sign =
        m_search->addAction(drawings::icon(drawings::Sign::Search, palette()), QLineEdit::LeadingPosition);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(label);
    row->addWidget(m_kind, 1);
    row->addWidget(m_search, 2);
    row->addWidget(m_count);
    row->addWidget(m_all);
    m_soon.setSingleShot(true);
    m_soon.setInterval(typingMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &FilterBar::apply);
    connect(m_kind, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &FilterBar::apply);
    connect(m_search, &QLineEdit::textChanged, &m_soon, QOverload<>::of(&QTimer::start));
    connect(m_all, &QToolButton::clicked, this, &FilterBar::clear);
    connect(&workbench.order(), &DocumentOrder::shownChanged, this, &FilterBar::tell);
    tell();
}

void FilterBar::fillKinds()
{
    for (const DocumentFilter::Kind kind : DocumentFilter::kinds())
        m_kind->addItem(DocumentFilter::nameOf(kind), static_cast<int>(kind));
    // The longest kind would make the window too wide for small screens.
    m_kind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_kind->setMinimumContentsLength(shortestKind);
    m_kind->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_kind->view()->setMinimumWidth(m_kind->view()->sizeHintForColumn(0) +
                                    2 * fontMetrics().averageCharWidth());
    connect(m_kind, &QComboBox::currentTextChanged, m_kind, &QWidget::setToolTip); // where it is cut off
}

void FilterBar::show(DocumentFilter::Kind kind)
{
    m_search->clear();
    m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(kind)));
}

void FilterBar::clear()
{
    m_search->clear();
    m_kind->setCurrentIndex(0);
}

void FilterBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && m_sign != nullptr)
        m_sign->setIcon(drawings::icon(drawings::Sign::Search, palette()));
    QWidget::changeEvent(event);
}

void FilterBar::apply()
{
    DocumentFilter filter;
    filter.setKind(static_cast<DocumentFilter::Kind>(m_kind->currentData().toInt()));
    filter.setSearch(m_search->text());
    m_workbench.order().setFilter(filter);
    tell();
}

void FilterBar::tell()
{
    const int all = m_workbench.table().count();
    const int shown = m_workbench.order().shown().size();
    m_count->setText(shown == all
                         ? tr("%Ln document(s)", "", all)
                         : tr("%1 of %2 shown").arg(QLocale().toString(shown), QLocale().toString(all)));
    m_all->setVisible(!m_workbench.order().filter().isOpen());
}

} // namespace host::desktop
