#pragma once

#include "host/desktop/look/ElidedLabel.h"

#include "host/desktop/change/ChangeDraft.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <vector>

namespace host::desktop {

/// One setting of the change: "Keep" or a value, and below it what the documents have now.
class SettingRow : public QObject
{
    Q_OBJECT

public:
    using Value = std::optional<ViewValue>;

    /// Puts its widgets into the next two rows of the layout.
    SettingRow(ViewEntry entry, QGridLayout* layout, QWidget* parent);

    ViewEntry entry() const { return m_entry; }
    void setDraft(const ChangeDraft& draft);
    /// \param text what the documents have; empty for nothing.
    void setPresent(const QString& text, const QString& all);
    void setEnabled(bool enabled);
    QComboBox* box() const { return m_box; }

signals:
    void edited(host::ViewEntry entry, const host::desktop::SettingRow::Value& value);
    /// A title is to be set only where there is none.
    void keepsTitles(bool keeps);

private:
    enum class Kind { Keep, Value, Number, Text, TextIfMissing };

    struct Choice
    {
        Kind kind;
        ViewValue value;
    };

    QLayout* makeEditors(QWidget* parent);
    void offer();
    void offer(const QString& text, Kind kind, const ViewValue& value = Unset());
    int placeOf(const Value& value, bool keepsTitles) const;
    bool isBeingTyped() const;
    void choose();
    void tell();
    Value valueOf(const Choice& choice) const;

    ViewEntry m_entry;
    QLabel* m_label;
    QComboBox* m_box;
    QSpinBox* m_number = nullptr;
    QLineEdit* m_text = nullptr;
    ElidedLabel* m_present;
    bool m_isUnfinished = false;
    std::vector<Choice> m_choices;
};

} // namespace host::desktop
