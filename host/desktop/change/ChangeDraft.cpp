#include "ChangeDraft.h"

#include "host/change/ViewValues.h"
#include "host/desktop/texts/PlainText.h"
#include "host/desktop/texts/ViewTexts.h"

#include <QCoreApplication>

namespace host::desktop {

void ChangeDraft::set(ViewEntry entry, const std::optional<ViewValue>& value)
{
    m_stored.reset();
    ViewChange view;
    for (const viewentries::Description& each : viewentries::all())
        if (m_view[each.entry] && each.entry != entry)
            view.set(each.entry, *m_view[each.entry]);
    if (value)
        view.set(entry, *value);
    if (m_view.keepsTitles() && view[ViewEntry::Title])
        view.keepTitles();
    m_view = view;
}

void ChangeDraft::setKeepsTitles(bool keeps)
{
    ViewChange view;
    for (const viewentries::Description& each : viewentries::all())
        if (m_view[each.entry])
            view.set(each.entry, *m_view[each.entry]);
    if (keeps)
        view.keepTitles();
    m_view = view;
}

void ChangeDraft::setView(const ViewChange& view)
{
    m_stored.reset();
    m_view = view;
}

void ChangeDraft::setStored(const StoredChoice& stored)
{
    m_view = ViewChange();
    m_stored = stored;
}

ViewChange ChangeDraft::like(const DocumentFacts& facts)
{
    ViewChange view;
    for (const viewentries::Description& each : viewentries::all())
        if (each.entry != ViewEntry::Title && each.entry != ViewEntry::Lang)
            view.set(each.entry, facts[each.entry]);
    if (!std::holds_alternative<Magnification>(facts[ViewEntry::Zoom]))
        view.remove(ViewEntry::Zoom); // of the page, which says so
    return view;
}

QStringList ChangeDraft::arguments() const
{
    if (m_stored)
        return m_stored->options;
    QStringList words;
    for (const std::string& word : viewvalues::optionsOf(m_view))
        words += QString::fromStdString(word);
    return words;
}

QString ChangeDraft::inWords() const
{
    if (m_stored)
        return plaintext::shown(m_stored->name);
    QStringList texts;
    for (const viewentries::Description& each : viewentries::all())
        if (const auto& value = m_view[each.entry])
            texts += QCoreApplication::translate("ChangeDraft", "%1: %2")
                         .arg(viewtexts::nameOf(each.entry), viewtexts::valueOf(each.entry, *value));
    return texts.join(QCoreApplication::translate("ChangeDraft", "; "));
}

} // namespace host::desktop
