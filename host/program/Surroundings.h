#pragma once

/// What the program was started with that could make it run somebody else's code.
namespace host::surroundings {

/// Throws UsageError when the program has the rights of its file's owner or group, not its user's.
void refuseForeignRights();

/// Drops the variables that say from where code is loaded. To be called before anything is. What the loader has
/// loaded by then it has found where the program was built to look.
void forgetPlacesOfCode();

} // namespace host::surroundings
