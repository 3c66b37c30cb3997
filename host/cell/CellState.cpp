#include "CellState.h"

namespace host {

std::string CellState::missing() const
{
    std::string text;
    if (!filesProblem.empty())
        text = "the files that workers reach are not limited: " + filesProblem;
    if (!callsProblem.empty())
        text += (text.empty() ? "" : "; ") +
                ("the system calls that workers make are not limited: " + callsProblem);
    return text;
}

} // namespace host
