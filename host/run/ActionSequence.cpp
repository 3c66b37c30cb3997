#include "ActionSequence.h"

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "shared/CActionInterface.h"

namespace host {

ActionSequence::ActionSequence(CActionInterface& action, TelvarPDFLibraryCPDylibCPP1311& library,
                               const std::vector<ActionEntry>& entries)
    : m_action(action), m_library(library), m_entries(entries)
{
    for (const ActionEntry& entry : m_entries)
        call(&CActionInterface::PreSequenceProc, entry);
}

ActionSequence::~ActionSequence()
{
    for (const ActionEntry& entry : m_entries)
        call(&CActionInterface::PostSequenceProc, entry);
}

Failure ActionSequence::apply()
{
    m_errors.ClearAll();
    for (const ActionEntry& entry : m_entries)
        if (call(&CActionInterface::WorkProc, entry) != 0)
            return {ReasonCode::RefusedCall,
                    m_errors.GetLast().isEmpty() ? "the action failed" : m_errors.GetLast().toStdString()};
    return {};
}

int ActionSequence::call(Call operation, const ActionEntry& entry)
{
    SettingsMap settings = entry.settings;
    WorkProcInfoStruct info{&m_library, &m_errors, {}, &settings};
    return (m_action.*operation)(&info);
}

} // namespace host
