#pragma once

/// Makes the application speak the user's language, as far as there are translations; English where there are none.
namespace host::desktop::language {

/// To be called once, after the application object is made.
void choose();

} // namespace host::desktop::language
