// The module's entry points are generated with CEditInitialView; a module needs a source file of its own.
#include "editinitialview.h"
