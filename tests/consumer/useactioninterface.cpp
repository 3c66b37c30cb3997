// The interface alone, as a host has it that knows an action by nothing else.
#include "shared/CActionInterface.h"

#include <QObject>

int main()
{
    QObject noAction;
    return qobject_cast<CActionInterface*>(&noAction) == nullptr ? 0 : 1;
}
