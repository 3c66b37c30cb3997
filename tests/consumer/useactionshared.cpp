#include "CErrorHandler.h"
#include "shared/CUtils.h"

int main()
{
    CErrorHandler errors;
    errors.StoreError("%s", qPrintable(CUtils::GetSettingsFolder()));
    return errors.GetCount() == 1 ? 0 : 1;
}
