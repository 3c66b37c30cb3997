#include "SettingRow.h"

#include "host/change/ViewValues.h"
#include "host/desktop/look/Drawings.h"
#include "host/desktop/texts/PlainText.h"
#include "host/desktop/texts/ViewTexts.h"
#include "host/terminal/UsageError.h"

#include "shared/frame/CWheelFocusFilter.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <climits>

namespace host::desktop {

using viewentries::Kind;

namespace {

Kind kindOf(ViewEntry entry)
{
    return viewentries::describe(entry).kind;
}

bool isText(ViewEntry entry)
{
    return kindOf(entry) == Kind::Text || kindOf(entry) == Kind::Language;
}

bool isNumber(ViewEntry entry)
{
    return kindOf(entry) == Kind::Page || kindOf(entry) == Kind::Count;
}

} // namespace

SettingRow::SettingRow(ViewEntry entry, QGridLayout* layout, QWidget* parent)
    : QObject(parent), m_entry(entry), m_label(new PlainLabel(viewtexts::nameOf(entry), parent)),
      m_box(new QComboBox(parent)), m_present(new ElidedLabel(parent))
{
    m_label->setBuddy(m_box);
    const QString name = viewentries::describe(entry).option;
    m_box->setObjectName(name);
    m_present->setObjectName(name + "-now");
    m_box->setAccessibleName(viewtexts::nameOf(entry));
    m_box->setMinimumContentsLength(12);
    new CWheelFocusFilter(m_box);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_present->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QLayout* editors = makeEditors(parent);
    for (QWidget* each : {static_cast<QWidget*>(m_label), static_cast<QWidget*>(m_box)}) {
        each->setToolTip(viewtexts::helpOf(entry));
        each->setWhatsThis(viewtexts::helpOf(entry));
    }
    const int row = layout->rowCount();
    layout->addWidget(m_label, row, 0);
    layout->addLayout(editors, row, 1);
    layout->addWidget(m_present, row + 1, 1);
    layout->setRowMinimumHeight(row + 1, m_present->sizeHint().height() + 6);
    offer();
    choose();
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, [this] {
        choose();
        tell();
    });
}

QLayout* SettingRow::makeEditors(QWidget* parent)
{
    auto* editors = new QHBoxLayout;
    editors->setSpacing(6);
    editors->addWidget(m_box, 2);
    if (isNumber(m_entry)) {
        m_number = new QSpinBox(parent);
        m_number->setObjectName(m_box->objectName() + "-number");
        m_number->setRange(1, INT_MAX);
        new CWheelFocusFilter(m_number);
        m_number->setAccessibleName(tr("%1, number").arg(viewtexts::nameOf(m_entry)));
        m_number->setWhatsThis(viewtexts::helpOf(m_entry));
        connect(m_number, QOverload<int>::of(&QSpinBox::valueChanged), this, &SettingRow::tell);
        editors->addWidget(m_number, 1);
    }
    if (isText(m_entry)) {
        m_text = new QLineEdit(parent);
        m_text->setObjectName(m_box->objectName() + "-text");
        m_text->setAccessibleName(tr("%1, text").arg(viewtexts::nameOf(m_entry)));
        m_text->setPlaceholderText(kindOf(m_entry) == viewentries::Kind::Language ? QStringLiteral("en-GB")
                                                                                  : QString());
        m_text->setWhatsThis(viewtexts::helpOf(m_entry));
        connect(m_text, &QLineEdit::textEdited, this, &SettingRow::tell);
        editors->addWidget(m_text, 2);
    }
    return editors;
}

void SettingRow::offer()
{
    offer(tr("Keep"), SettingRow::Kind::Keep);
    for (const ViewValue& value : viewtexts::choices(m_entry))
        offer(viewtexts::valueOf(m_entry, value), SettingRow::Kind::Value, value);
    if (kindOf(m_entry) == viewentries::Kind::Page) {
        offer(tr("First"), SettingRow::Kind::Value, 1);
        offer(viewtexts::valueOf(m_entry, LastPage()), SettingRow::Kind::Value, LastPage());
    }
    if (m_number != nullptr)
        offer(kindOf(m_entry) == viewentries::Kind::Page ? tr("Page…") : tr("Number…"),
              SettingRow::Kind::Number);
    if (m_entry == ViewEntry::Title) {
        offer(tr("From the file name"), SettingRow::Kind::Value, FileNameAsTitle());
        offer(tr("From the file name, where missing"), SettingRow::Kind::TextIfMissing, FileNameAsTitle());
    }
    if (m_text != nullptr)
        offer(tr("This text:"), SettingRow::Kind::Text);
    if (viewentries::describe(m_entry).unsettable)
        offer(tr("Remove the setting"), SettingRow::Kind::Value, Unset());
}

void SettingRow::offer(const QString& text, SettingRow::Kind kind, const ViewValue& value)
{
    m_box->addItem(text);
    m_choices.push_back({kind, value});
    if (kind == SettingRow::Kind::Keep)
        m_box->insertSeparator(m_box->count());
    if (kind == SettingRow::Kind::Keep)
        m_choices.push_back({kind, value}); // the separator's place
}

/// A text that is no value yet: the field stays for as long as a person is at it.
bool SettingRow::isBeingTyped() const
{
    return m_isUnfinished && (m_text->hasFocus() || m_box->hasFocus());
}

int SettingRow::placeOf(const Value& value, bool keepsTitles) const
{
    const Choice& now = m_choices[static_cast<std::size_t>(m_box->currentIndex())];
    if (!value)
        return isBeingTyped() ? m_box->currentIndex() : 0;
    if (now.kind == SettingRow::Kind::Number && std::holds_alternative<int>(*value))
        return m_box->currentIndex(); // page 1 is typed on the way to page 12
    int found = 0;
    for (int place = 0; place < static_cast<int>(m_choices.size()); ++place) {
        const Choice& choice = m_choices[static_cast<std::size_t>(place)];
        const bool isExact = choice.kind == SettingRow::Kind::Value && choice.value == *value && !keepsTitles;
        if (isExact ||
            (choice.kind == SettingRow::Kind::TextIfMissing && choice.value == *value && keepsTitles))
            return place;
        if ((choice.kind == SettingRow::Kind::Number && std::holds_alternative<int>(*value)) ||
            (choice.kind == SettingRow::Kind::Text && std::holds_alternative<std::string>(*value)))
            found = place;
    }
    return found;
}

void SettingRow::setDraft(const ChangeDraft& draft)
{
    const Value& value = draft.view()[m_entry];
    const bool keepsTitles = m_entry == ViewEntry::Title && draft.view().keepsTitles();
    int place = placeOf(value, keepsTitles);
    if (value)
        m_isUnfinished = false;
    if (value && place == 0) { // a value of another document that is not offered
        offer(viewtexts::valueOf(m_entry, *value), SettingRow::Kind::Value, *value);
        place = m_box->count() - 1;
    }
    m_box->setCurrentIndex(place);
    if (m_number != nullptr && value && std::holds_alternative<int>(*value)) {
        const QSignalBlocker quiet(m_number);
        m_number->setValue(std::get<int>(*value));
    }
    if (m_text != nullptr && value && std::holds_alternative<std::string>(*value) && !m_text->hasFocus())
        m_text->setText(QString::fromStdString(std::get<std::string>(*value)));
    QFont font = m_label->font();
    font.setBold(value.has_value());
    m_label->setFont(font);
    choose();
}

void SettingRow::choose()
{
    const SettingRow::Kind kind = m_choices[static_cast<std::size_t>(m_box->currentIndex())].kind;
    if (m_number != nullptr)
        m_number->setVisible(kind == SettingRow::Kind::Number && m_box->isVisibleTo(m_box->parentWidget()));
    if (m_text != nullptr)
        m_text->setVisible(kind == SettingRow::Kind::Text && m_box->isVisibleTo(m_box->parentWidget()));
}

/// A language that is none yet is still being typed.
void SettingRow::tell()
{
    const Choice choice = m_choices[static_cast<std::size_t>(m_box->currentIndex())];
    try {
        const Value value = valueOf(choice);
        m_isUnfinished = false;
        emit edited(m_entry, value);
        if (m_entry == ViewEntry::Title && value)
            emit keepsTitles(choice.kind == SettingRow::Kind::TextIfMissing);
    } catch (const UsageError&) {
        m_isUnfinished = true;
        emit edited(m_entry, std::nullopt);
    }
}

SettingRow::Value SettingRow::valueOf(const Choice& choice) const
{
    switch (choice.kind) {
    case SettingRow::Kind::Keep:
        return std::nullopt;
    case SettingRow::Kind::Number:
        return m_number->value();
    case SettingRow::Kind::Text:
        return viewvalues::parse(m_entry, m_text->text().toStdString());
    default:
        return choice.value;
    }
}

void SettingRow::setPresent(const QString& text, const QString& all)
{
    QPalette quiet = m_box->palette();
    quiet.setColor(QPalette::WindowText, drawings::quietText(quiet));
    m_present->setPalette(quiet);
    m_present->setText(text);
    m_present->setToolTip(plaintext::tip(all));
    m_box->setAccessibleDescription(all);
}

void SettingRow::setEnabled(bool enabled)
{
    for (QWidget* each :
         {static_cast<QWidget*>(m_box), static_cast<QWidget*>(m_number), static_cast<QWidget*>(m_text)})
        if (each != nullptr)
            each->setEnabled(enabled);
}

} // namespace host::desktop
