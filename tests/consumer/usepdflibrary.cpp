#include "TelvarPDFLibraryCPDylibCPP1311.h"

int main()
{
    return TelvarPDFLibraryCPDylibCPP1311(L"/nowhere").LibraryLoaded() ? 1 : 0;
}
