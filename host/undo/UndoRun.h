#pragma once

#include "DocumentUndo.h"

#include <cstddef>
#include <string>

namespace host {

class StopSignal;

/// Works through a plan, a document at a time, and tells what became of each.
class UndoRun
{
public:
    /// The plan must outlive the object. \param dryRun writes nothing and tells what would be. \param quiet
    /// shows only what is left alone.
    UndoRun(const UndoPlan& plan, bool dryRun, bool quiet) : m_plan(plan), m_dryRun(dryRun), m_quiet(quiet) {}

    /// \returns the exit status.
    int run();

private:
    void removeLeftovers() const;
    void undoDocuments(StopSignal& stop);
    void add(const std::string& path, const UndoResult& result);
    void leaveAlone(const UndoPlan::LeftAlone& what);
    std::string counts() const;

    const UndoPlan& m_plan;
    bool m_dryRun;
    bool m_quiet;
    std::size_t m_undone = 0;
    std::size_t m_undoneAlready = 0;
    std::size_t m_leftAlone = 0;
    std::size_t m_notDone = 0;
};

} // namespace host
