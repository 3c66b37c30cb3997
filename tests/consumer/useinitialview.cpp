#include "TelvarPDFLibraryCPDylibCPP1311.h"
#include "editinitialview.h"

int main()
{
    TelvarPDFLibraryCPDylibCPP1311 library(L"/nowhere");
    QMap<QString, QVariant> settings;
    WorkProcInfoStruct info{&library, nullptr, {}, &settings};
    return CEditInitialView().WorkProc(&info);
}
