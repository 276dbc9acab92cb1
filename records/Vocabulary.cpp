// The vocabulary's one question to the server.
#include "records/Vocabulary.h"

#include "platform/Settings.h"
#include "records/ServerNames.h"

bool isFixedCheckEnabled()
{
    return NS_UTIL::CConfigItem::Instance()->readCfgItemIntValueFromDB(ServerNames::ITEM_SECTION,
                                                                       ServerNames::FIXED_CHECK_ITEM, 0) == 1;
}
