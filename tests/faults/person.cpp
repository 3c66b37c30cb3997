// Loaded into the program (LD_PRELOAD): a person who changes a setting in the window of "quintar configure"
// and presses OK. From then on calls fail as the shim is ordered to.
#include "support/people/Person.h"

#include <QAbstractButton>

#include <dlfcn.h>

namespace {

void choose(QDialog& dialog)
{
    person::widget<QAbstractButton>(dialog, "HideMenuBarCheckBox")->setChecked(true);
    if (void* const begin = dlsym(RTLD_DEFAULT, "beginFaults"))
        reinterpret_cast<void (*)()>(begin)();
    person::widget<QAbstractButton>(dialog, "okButton")->click();
}

void wait()
{
    person::whenOpens("CPrefsDialog", choose);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(wait)
