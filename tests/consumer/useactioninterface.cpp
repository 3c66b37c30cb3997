// The interface alone: a host that lists a plug-in's action.
#include "shared/CActionInterface.h"

#include <QPluginLoader>

int main(int argc, char** argv)
{
    QPluginLoader loader(argc > 1 ? argv[1] : "");
    auto* action = qobject_cast<CActionInterface*>(loader.instance());
    return action != nullptr && action->GetActionFlags() >= 0 ? 0 : 1;
}
