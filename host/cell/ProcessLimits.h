#pragma once

/// What a process gives up by itself before it meets what strangers sent.
namespace host::processlimits {

/// New privileges, for good; and of those that root has, the ones that no reading and writing of files takes,
/// if the system allows that. \returns false with errno set when new ones cannot be given up.
bool giveUpPrivileges();

/// Its environment, in which there may be secrets.
void forgetEnvironment();

/// More memory than that, which this process allocates. What the kernel does not count as such (memory that is
/// taken as a stack) is within that as well and some more, together with what the process has mapped by now:
/// whatever it maps later is to be small. Sanitizers need memory without bound, and get it.
void limitMemory(int mebibytes);

} // namespace host::processlimits
