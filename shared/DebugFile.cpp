// In a file of its own for the same reason as StoreErrorToLog.
#include "CErrorHandler.h"

void AddToDebugFile(const char*, ...) {}
