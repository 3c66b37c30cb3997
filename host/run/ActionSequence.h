#pragma once

#include "host/failures/Failure.h"
#include "host/settings/SettingsFile.h"

#include "shared/CErrorHandler.h"

#include <string>
#include <vector>

class CActionInterface;
class TelvarPDFLibraryCPDylibCPP1311;
struct WorkProcInfoStruct;

namespace host {

/// Applies entries of an action, in their order, to the documents of a library. Brackets the sequence from
/// its construction to its destruction.
class ActionSequence
{
public:
    /// Everything lent must outlive the object.
    ActionSequence(CActionInterface& action, TelvarPDFLibraryCPDylibCPP1311& library,
                   const std::vector<ActionEntry>& entries);
    ~ActionSequence();
    ActionSequence(const ActionSequence&) = delete;
    ActionSequence& operator=(const ActionSequence&) = delete;

    /// Works on the selected document.
    Failure apply();

private:
    using Call = int (CActionInterface::*)(WorkProcInfoStruct*);

    int call(Call operation, const ActionEntry& entry);

    CActionInterface& m_action;
    TelvarPDFLibraryCPDylibCPP1311& m_library;
    const std::vector<ActionEntry>& m_entries;
    CErrorHandler m_errors;
};

} // namespace host
