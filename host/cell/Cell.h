#pragma once

#include "CallFilter.h"
#include "CellState.h"
#include "Landlock.h"
#include "Reach.h"

#include <optional>
#include <vector>

namespace host {

/// What --sandbox asks for.
enum class Sandbox {
    Default, ///< As Try; nobody is told on the terminal what is missing.
    Try,
    Require,
    Off,
};

/// The cell that workers lock themselves into before they read what strangers sent: from then on a process
/// reaches the files that it needs, makes the system calls that it needs, and gets no new privileges.
class Cell
{
public:
    /// Tries in a process of its own what the kernel offers. Throws UsageError when all of it is required and
    /// cannot be had.
    explicit Cell(Sandbox wanted);

    const CellState& state() const { return m_state; }

    /// What the workers reach that are started from now on. Throws std::runtime_error.
    void allow(Reach reach);
    /// The same by what lies there now; for want of memory, rules stay as they are.
    void renew();

    /// Locks this process in, which has one thread. Standard streams lead nowhere from then on, and all other
    /// descriptors are closed but those. Throws std::runtime_error.
    void enter(const std::vector<int>& descriptors, callfilter::Outside outside) const;

private:
    void makeRules();

    CellState m_state;
    Reach m_reach;
    std::optional<Landlock> m_landlock;
};

} // namespace host
