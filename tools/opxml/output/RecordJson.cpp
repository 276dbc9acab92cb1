// One walk over the described fields; the keys are the field names.
#include "tools/opxml/output/RecordJson.h"

#include "records/RecordFields.h"

namespace
{
template <typename Record>
Json recordJson(const Record& stRecord);

// One toField() for each kind of value.
template <typename Kind, typename Value>
Json toField(Kind /*stKind*/, const Value& value)
{
    return value;
}
template <typename Kind, typename Enum>
Json toField(Kind /*stKind*/, const AsnEnum<Enum>& enValue)
{
    return enValue.number();
}
template <typename Record>
Json toField(StRecord /*stKind*/, const Record& stRecord)
{
    return recordJson(stRecord);
}
template <typename Record>
Json toField(StList /*stKind*/, const std::list<Record>& lstRecord)
{
    Json oList = Json::array();
    for (const Record& stRecord : lstRecord)
        oList.push_back(recordJson(stRecord));
    return oList;
}

template <typename Record>
Json recordJson(const Record& stRecord)
{
    Json oRecord = Json::object();
    visitFields(stRecord, [&oRecord](const char* pszName, auto stKind, const auto& value)
                { oRecord[pszName] = toField(stKind, value); });
    return oRecord;
}
} // namespace

Json toJson(const StAsnDevTypeVerXMLInfo& stInfo)
{
    return recordJson(stInfo);
}

Json toJson(const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    Json oList = Json::array();
    for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
        oList.push_back(recordJson(*pInfo));
    return oList;
}

std::string jsonText(const Json& oJson, std::size_t nIndent)
{
    const std::string strPlain = oJson.dump(2, ' ', false, Json::error_handler_t::replace);
    std::string       strText;
    strText.reserve(strPlain.size());
    for (const char cChar : strPlain)
    {
        strText += cChar;
        if (cChar == '\n') // between values only: inside a text it is escaped
            strText.append(nIndent, ' ');
    }
    return strText;
}

std::string jsonLine(const Json& oJson)
{
    return oJson.dump(-1, ' ', false, Json::error_handler_t::replace);
}
