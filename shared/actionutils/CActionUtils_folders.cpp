#include "CActionUtils.h"

#include "CUtils.h"

QString CActionUtils::GetSettingsFolder()
{
    return CUtils::GetSettingsFolder();
}

QString CActionUtils::GetCollectionsFolder()
{
    return CUtils::GetCollectionsFolder();
}

QString CActionUtils::GetSequenceFolder()
{
    return CUtils::GetSequenceFolder();
}

QString CActionUtils::GetQuintarAppDataFolder()
{
    return CUtils::GetAppDataToolsFolder();
}
