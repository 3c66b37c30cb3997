#pragma once

#include <string>

namespace host {

/// How far workers are kept from what they do not need.
struct CellState
{
    bool wanted = false;
    /// Why the kernel does not limit which files they reach; empty when it does. Only of a cell that is wanted.
    std::string filesProblem = {};
    /// The same of the system calls that they make.
    std::string callsProblem = {};

    bool limitsFiles() const { return wanted && filesProblem.empty(); }
    bool limitsCalls() const { return wanted && callsProblem.empty(); }
    /// What is missing and why, of a cell that is wanted; empty when nothing is.
    std::string missing() const;
};

} // namespace host
