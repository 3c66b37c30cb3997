#pragma once

/// How far a run is, for the desktop's task bar. Where nobody listens nothing happens.
namespace host::desktop::launcherprogress {

/// \param fraction from 0 to 1; below 0 nothing is shown.
void show(double fraction);

} // namespace host::desktop::launcherprogress
