#include "ChangePanel.h"

#include "GrowingArea.h"
#include "host/desktop/look/Drawings.h"
#include "host/desktop/look/PlainLabel.h"
#include "host/desktop/texts/ViewTexts.h"

#include <algorithm>

namespace host::desktop {

namespace {

const int spacing = 8;
const int margin = 12;

/// A line that says something is wrong: a sign, words, and perhaps a button.
QWidget* warningLine(const ChangeWarning& warning, QWidget* parent, const std::function<void()>& show)
{
    auto* line = new QWidget(parent);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    auto* sign = new QLabel(line);
    sign->setPixmap(drawings::icon(drawings::Sign::Warning, parent->palette()).pixmap(16, 16));
    auto* text = new PlainLabel(warning.text, line);
    text->setWordWrap(true);
    text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    row->addWidget(sign, 0, Qt::AlignVCenter);
    row->addWidget(text, 1);
    if (warning.show) {
        auto* button = new QToolButton(line);
        button->setText(ChangePanel::tr("Show Them"));
        button->setAccessibleName(ChangePanel::tr("Show them: %1").arg(warning.text));
        QObject::connect(button, &QToolButton::clicked, parent, show);
        row->addWidget(button, 0, Qt::AlignVCenter);
    }
    return line;
}

/// Of all settings, so that the values stand below one another in each group.
int widestName(QFont font)
{
    font.setBold(true); // as those that are changed
    const QFontMetrics metrics(font);
    int widest = 0;
    for (const viewentries::Description& each : viewentries::all())
        widest = std::max(widest, metrics.horizontalAdvance(viewtexts::nameOf(each.entry)));
    return widest;
}

Qt::ArrowType foldedArrow(const QWidget* widget)
{
    return widget->layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
}

} // namespace

ChangePanel::ChangePanel(Workbench& workbench, QWidget* parent)
    : QWidget(parent), m_workbench(workbench), m_scope(new QComboBox(this)), m_presets(new QToolButton(this)),
      m_reset(new QPushButton(tr("&Keep All"), this)), m_warnings(new QVBoxLayout), m_destination(nullptr)
{
    m_scope->setObjectName("scope");
    m_presets->setObjectName("presetsButton");
    m_reset->setObjectName("keepAllButton");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addLayout(makeHead());
    column->addWidget(makeSettings(), 1);
    column->addWidget(makeStored(), 1);
    m_warnings->setSpacing(4);
    column->addLayout(m_warnings);
    m_destination =
        new DestinationRow(this); // after the settings, so that the tabulator comes to it after them
    column->addWidget(m_destination);

    m_destination->setDestination(workbench.destination());
    connect(m_destination, &DestinationRow::edited, &workbench, &Workbench::setDestination);
    connect(m_reset, &QPushButton::clicked, this, [this] { m_workbench.setDraft(ChangeDraft()); });
    connect(&workbench, &Workbench::draftChanged, this, &ChangePanel::show);
    connect(&workbench, &Workbench::targetsChanged, this, &ChangePanel::show);
    connect(&workbench.machine(), &RunMachine::changed, this, &ChangePanel::show);
    show();
}

QLayout* ChangePanel::makeHead()
{
    auto* label = PlainLabel::heading(tr("Cha&nge for"), this);
    label->setBuddy(m_scope);
    m_scope->setAccessibleName(tr("Change for"));
    m_scope->setWhatsThis(
        tr("A change is for all documents that are shown, or for those that are selected. Documents "
           "that the search or the filter hides stay as they are."));
    m_scope->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_scope->addItems({QString(), QString()});
    connect(m_scope, QOverload<int>::of(&QComboBox::activated), this, [this](int place) {
        m_workbench.setScope(place == 0 ? Workbench::Scope::Shown : Workbench::Scope::Selected);
    });
    m_presets->setText(tr("&Presets"));
    m_presets->setPopupMode(QToolButton::InstantPopup);
    m_presets->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_presets->setWhatsThis(
        tr("Changes under a name: views that you keep, and the action lists and favourites of the "
           "action “Initial View”."));
    m_reset->setAutoDefault(false);
    auto* head = new QHBoxLayout;
    head->setSpacing(spacing);
    head->addWidget(label);
    head->addWidget(m_scope, 1);
    head->addWidget(m_presets);
    head->addWidget(m_reset);
    return head;
}

QWidget* ChangePanel::makeSettings()
{
    auto* area = new GrowingArea(this);
    auto* inside = new QWidget(area);
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, spacing, 0);
    column->setSpacing(0);
    addGroup(column, {},
             {ViewEntry::PageMode, ViewEntry::PageLayout, ViewEntry::OpenPage, ViewEntry::Zoom,
              ViewEntry::DisplayDocTitle},
             true);
    addGroup(column, tr("Title and language"), {ViewEntry::Title, ViewEntry::Lang, ViewEntry::Direction},
             false);
    addGroup(column, tr("Viewer's window"),
             {ViewEntry::HideToolbar, ViewEntry::HideMenubar, ViewEntry::HideWindowUI, ViewEntry::FitWindow,
              ViewEntry::CenterWindow, ViewEntry::NonFullScreenPageMode},
             false);
    addGroup(column, tr("Printing"),
             {ViewEntry::PrintScaling, ViewEntry::Duplex, ViewEntry::PickTrayByPDFSize, ViewEntry::NumCopies},
             false);
    column->addStretch();
    area->setWidget(inside);
    area->setFocusPolicy(Qt::NoFocus); // it scrolls to the setting that has the focus
    m_settings = area;
    return area;
}

/// Groups that a person needs seldom are folded up below their titles.
void ChangePanel::addGroup(QVBoxLayout* column, const QString& title, const std::vector<ViewEntry>& entries,
                           bool isOpen)
{
    QToolButton* fold = nullptr;
    if (!title.isEmpty()) {
        fold = new QToolButton;
        fold->setText(title);
        fold->setCheckable(true);
        fold->setAutoRaise(true);
        fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        fold->setArrowType(foldedArrow(fold));
        column->addWidget(fold);
    }
    auto* body = new QWidget;
    auto* grid = new QGridLayout(body);
    grid->setContentsMargins(0, 2, 0, 2);
    grid->setVerticalSpacing(2);
    grid->setHorizontalSpacing(margin);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, widestName(font()));
    for (const ViewEntry entry : entries) {
        auto* row = new SettingRow(entry, grid, body);
        connect(row, &SettingRow::edited, this, &ChangePanel::edit);
        connect(row, &SettingRow::keepsTitles, this, [this](bool keeps) {
            ChangeDraft draft = m_workbench.draft();
            draft.setKeepsTitles(keeps);
            m_workbench.setDraft(draft);
        });
        m_rows.push_back(row);
    }
    column->addWidget(body);
    body->setVisible(isOpen);
    if (fold != nullptr)
        connect(fold, &QToolButton::toggled, body, [fold, body](bool open) {
            fold->setArrowType(open ? Qt::DownArrow : foldedArrow(fold));
            body->setVisible(open);
        });
}

/// Stored settings are all or nothing: they are told here and changed in their own dialog.
QWidget* ChangePanel::makeStored()
{
    m_stored = new QWidget(this);
    auto* column = new QVBoxLayout(m_stored);
    column->setContentsMargins(0, 0, 0, 0);
    m_storedName = PlainLabel::heading({}, m_stored);
    m_storedLines = new PlainLabel(m_stored);
    m_storedLines->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    m_storedLines->setWordWrap(true);
    m_configure = new QPushButton(tr("C&onfigure…"), m_stored);
    m_configure->setObjectName("configureButton");
    connect(m_configure, &QPushButton::clicked, this, &ChangePanel::configureWanted);
    column->addWidget(m_storedName);
    auto* area = new GrowingArea(m_stored);
    area->setObjectName("storedArea");
    auto* inside = new QWidget(area); // whose layout tells when there are more lines
    auto* lines = new QVBoxLayout(inside);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(m_storedLines, 0, Qt::AlignTop);
    area->setWidget(inside);
    column->addWidget(area, 1);
    column->addWidget(m_configure, 0, Qt::AlignLeft);
    return m_stored;
}

void ChangePanel::edit(ViewEntry entry, const SettingRow::Value& value)
{
    ChangeDraft draft = m_workbench.draft();
    draft.set(entry, value);
    m_workbench.setDraft(draft);
}

void ChangePanel::show()
{
    const bool isOpen = m_workbench.machine().isEnabled(RunMachine::Command::Edit);
    if (m_workbench.machine().isWriting() && isAncestorOf(window()->focusWidget()))
        emit focusLeaves(); // before it is passed on from row to row, and the area scrolls there
    const SelectionSummary summary = m_workbench.summary();
    for (SettingRow* row : m_rows) {
        row->setDraft(m_workbench.draft());
        const QString text = summary.textOf(row->entry());
        row->setPresent(text, text);
        row->setEnabled(isOpen);
    }
    const auto& stored = m_workbench.draft().stored();
    m_settings->setVisible(!stored);
    m_stored->setVisible(stored.has_value());
    if (stored) {
        m_storedName->setText(m_workbench.draft().inWords());
        m_storedLines->setText(stored->lines.join('\n'));
    }
    m_configure->setEnabled(isOpen);
    m_reset->setEnabled(isOpen && !m_workbench.draft().isEmpty());
    m_destination->setEnabled(isOpen);
    m_scope->setEnabled(isOpen);
    m_presets->setEnabled(isOpen);
    showScope();
    showWarnings(summary);
}

void ChangePanel::showScope()
{
    const int shown = m_workbench.order().shown().size();
    const int selected = m_workbench.order().selected().size();
    const bool areAll = shown == m_workbench.table().count();
    m_scope->setItemText(0, areAll ? tr("all %Ln document(s)", "", shown) : tr("all %Ln shown", "", shown));
    m_scope->setItemText(1, tr("the %Ln selected", "", selected));
    m_scope->setCurrentIndex(m_workbench.isForSelected() ? 1 : 0);
}

void ChangePanel::showWarnings(const SelectionSummary& summary)
{
    std::vector<ChangeWarning> warnings = changewarnings::of(m_workbench.draft(), summary);
    if (warnings == m_shownWarnings)
        return;
    m_shownWarnings = std::move(warnings);
    while (QLayoutItem* item = m_warnings->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    QWidget* last = m_configure;
    for (const ChangeWarning& warning : m_shownWarnings) {
        QWidget* line = warningLine(warning, this, [this, warning] { emit showWanted(*warning.show); });
        m_warnings->addWidget(line);
        if (auto* button = line->findChild<QToolButton*>()) {
            setTabOrder(last, button);
            last = button;
        }
    }
}

} // namespace host::desktop
