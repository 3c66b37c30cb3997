#include "CErrorHandler.h"
#include "shared/CUtils.h"
#include "shared/lists/CSaveAsActionlistDialog.h"

#include <type_traits>

int main()
{
    static_assert(std::is_base_of_v<CQuintarDialog, CSaveAsActionlistDialog>);
    CErrorHandler errors;
    errors.StoreError("%s", qPrintable(CUtils::GetSettingsFolder()));
    return errors.GetCount() == 1 ? 0 : 1;
}
