// The log entry points stand in a file of their own so that a program which links them statically can put its
// own sink in their place.
#include "CErrorHandler.h"

void StoreErrorToLog(const char*) {}

void AddToDebugFile(const char*, ...) {}
