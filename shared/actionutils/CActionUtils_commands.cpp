#include "CActionUtils.h"

// clang-format off
QStringList gCommandsList{
    "splitiftextispresent",
    "splitiftextcontainedinbox",
    "splitiftextisinarun",
    "splitontextchange",
    "splitontextchangeafterstring",
    "splitontextchangeafterstringonly",
    "splitifthistextrepeats",
    "skipheader",
    "providebasefilename",
    "providefilename",
    "providefilenameifstringinbox",
    "providefilenamefromfirstword",
    "providefilenamefromselectedword",
    "providefilenamefromrangeofcharacters",
    "providefilenameafterstring",
    "providefilenameafterstringinbox",
    "addtofilename",
    "addtofilenametextinbox",
    "addtofilenameifstringinbox",
    "addtofilenameafterstringinbox",
    "deletecharactersfromfilename",
    "filterfilename",
    "getfilenamesfromlistinfile",
    "includeall",
    "includeiftextispresent",
    "includeinasinglefragmentiftextispresent",
    "includeiftextcontainedinbox",
    "includeiftextchangeafterstring",
    "excludeiftextispresent",
    "excludeiftextcontainedinbox",
    "excludeiftextchangeafterstring",
    "excludeifnotextcontainted",
    "extractfilename",
    "extracttext",
    "extracttextselectedwords",
    "extracttextskipwords",
    "extracttextskipthisword",
    "extracttextskipcharacters",
    "extractonlyifthistextinrect",
    "extractonlyifthistextnotinrect",
    "extracttextlineafterstring",
    "extracttextlineafterstringinrect",
    "fillinfodictentry",
};
// clang-format on

int CActionUtils::SplitComGetCommandIndex(QString name)
{
    return gCommandsList.indexOf(name.toLower());
}

QString CActionUtils::SplitComGetCommandString(int index)
{
    const bool known = index >= 0 && index < gCommandsList.size();
    return known ? gCommandsList.at(index) : QStringLiteral("INVALID_INDEX");
}
