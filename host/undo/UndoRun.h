#pragma once

#include "DocumentUndo.h"
#include "host/report/EventStream.h"
#include "host/workers/RunControl.h"

#include <cstddef>
#include <string>

namespace host {

/// Works through a plan, a document at a time, and tells what became of each.
class UndoRun
{
public:
    struct Options
    {
        RunControl& control;
        EventStream* events = nullptr; ///< Null for none; else nothing else is told.
        bool dryRun = false;           ///< Writes nothing and tells what would be.
        bool quiet = false;            ///< Shows only what is left alone.
    };

    /// The plan must outlive the object.
    UndoRun(const UndoPlan& plan, const Options& options) : m_plan(plan), m_options(options) {}

    /// \returns the exit status.
    int run();

private:
    void tellFound() const;
    void removeLeftovers() const;
    void undoDocuments();
    void add(std::size_t number, const std::string& path, const UndoResult& result);
    void leaveAlone(std::size_t number, const UndoPlan::LeftAlone& what);
    void print(const std::string& path, const UndoResult& result) const;
    void sumUp() const;
    std::string counts() const;

    const UndoPlan& m_plan;
    Options m_options;
    std::size_t m_undone = 0;
    std::size_t m_undoneAlready = 0;
    std::size_t m_leftAlone = 0;
    std::size_t m_notDone = 0;
};

} // namespace host
