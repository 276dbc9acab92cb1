// The vocabulary's one question to the server.
#include "records/Vocabulary.h"

#include "platform/Settings.h"

bool isFixedCheckEnabled()
{
    return NS_UTIL::CConfigItem::Instance()->readCfgItemIntValueFromDB("DC", "FIXED_CHECK_ITEM", 0) == 1;
}
