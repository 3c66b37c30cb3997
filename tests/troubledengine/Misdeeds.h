#pragma once

#include <string>

/// What a program does that a document has taken over.
namespace misdeeds {

/// To be called in the worker before it is locked in.
void prepare();

/// Does what the name of a document asks for, such as "reads-key": each is a function of Misdeeds.cpp. \returns whether
/// it could; true for a name that asks for nothing.
bool allDone(const std::wstring& name);

} // namespace misdeeds
