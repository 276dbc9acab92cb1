// See ServedKeys.h.
#include "tools/opxml/explain/ServedKeys.h"

#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/catalog/ServerCatalogs.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

CServedKeys::CServedKeys() : m_lstType(registeredTypes())
{
}

CServedKeys& CServedKeys::instance()
{
    // Never destroyed: its parsers must not outlive Xerces.
    static CServedKeys& s_oInstance = *new CServedKeys; // NOLINT(cppcoreguidelines-owning-memory)
    return s_oInstance;
}

const StServedKey& CServedKeys::find(const std::string& strDevType, const std::string& strDevTypeVer)
{
    const std::string strKey       = CXMLConfigDatabase::trans2TelnetDevType(strDevType, strDevTypeVer);
    const auto [itServed, bUnread] = m_mapKey.try_emplace(strKey);
    if (bUnread)
    {
        itServed->second.strKey = strKey;
        read(strDevType, itServed->second);
    }
    return itServed->second;
}

// The store keeps what was stored last under a key.
void CServedKeys::read(const std::string& strDevType, StServedKey& stServed)
{
    std::copy_if(m_lstType.begin(), m_lstType.end(), std::back_inserter(stServed.lstType),
                 [&stServed](const StRegisteredType& stType) { return stType.strKey == stServed.strKey; });
    for (auto itType = stServed.lstType.rbegin(); itType != stServed.lstType.rend(); ++itType)
    {
        catalog::StTypeCatalog stCatalog = m_oMaker.make(itType->strDevType, itType->strDevTypeVer);
        const std::string      strWhy    = whyNotRead(stCatalog);
        if (!strWhy.empty() && !stServed.strProblem.empty())
            continue;
        stServed.strProblem =
            strWhy.empty() ? ""
                           : fmt::format("\"{}\" {} failed: {}", itType->strDevType, itType->strDevTypeVer, strWhy);
        stServed.stCatalog = std::move(stCatalog);
        if (strWhy.empty())
            return;
    }
    if (!stServed.lstType.empty())
        return;
    const bool bKnown =
        std::any_of(m_lstType.begin(), m_lstType.end(),
                    [&strDevType](const StRegisteredType& stType) { return stType.strDevType == strDevType; });
    stServed.strProblem =
        bKnown ? fmt::format("device type \"{}\" has no configuration \"{}\"", strDevType, stServed.strKey)
               : unknownTypeText(m_lstType, strDevType);
}
