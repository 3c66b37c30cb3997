#pragma once

#include "ChangeDraft.h"
#include "SelectionSummary.h"

#include "host/desktop/rows/DocumentFilter.h"

#include <vector>

namespace host::desktop {

/// Where the change will disappoint.
struct ChangeWarning
{
    QString text;
    /// Which documents it is about; nothing where it is about viewers.
    std::optional<DocumentFilter::Kind> show;
    bool operator==(const ChangeWarning&) const = default;
};

namespace changewarnings {

std::vector<ChangeWarning> of(const ChangeDraft& draft, const SelectionSummary& summary);

} // namespace changewarnings

} // namespace host::desktop
