// Alarm tables and file-check rules: records that count for nothing, numbers that
// read as others, and what is there already. What a misspelt name has taken from a
// record is told with the name, not here again.
#include "alarm/AlarmTable.h"
#include "common/XmlRead.h"
#include "filecheck/ParseXMLFile.h"
#include "lint/DocumentRules.h"
#include "lint/Phrases.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace lint
{
namespace
{
constexpr std::size_t IDS_SHOWN  = 3;
constexpr const char* PARAM_NAME = "name";
constexpr const char* RULE_VALUE = "value";

bool isDigits(std::string_view strText)
{
    return !strText.empty() && strText.find_first_not_of("0123456789") == std::string_view::npos;
}

using Elements = std::vector<const StReadElement*>;

// What is common to the rules of tables: the document, and where things stand.
class CTableCheck
{
public:
    CTableCheck(const StReadDocument& stRead, CFileReport& oReport) : m_stRead(stRead), m_oReport(oReport) {}

protected:
    // The elements of a name that their reader came to, from one element to another.
    static Elements met(const StReadElement* pBegin, const StReadElement* pEnd, std::string_view strName)
    {
        Elements lstElement;
        for (const StReadElement* pElement = pBegin; pElement != pEnd; ++pElement)
        {
            if (pElement->stMark.bMet && pElement->strName == strName)
                lstElement.push_back(pElement);
        }
        return lstElement;
    }

    static Elements met(const StReadElement& stBelow, std::string_view strName)
    {
        return met(&stBelow + 1, stBelow.pEnd, strName);
    }

    Elements metInDocument(std::string_view strName) const
    {
        return met(&m_stRead.oTree.root(), m_stRead.oTree.root().pEnd, strName);
    }

    // Whether an attribute stands there that nobody reads: perhaps the one that is missing.
    static bool hasUnread(const StReadElement& stElement)
    {
        return std::any_of(stElement.lstAttribute.begin(), stElement.lstAttribute.end(),
                           [](const StWrittenAttribute& stWritten) { return !stWritten.isRead(); });
    }

    static bool holdsUnread(const StReadElement& stElement)
    {
        return std::any_of(&stElement + 1, stElement.pEnd,
                           [](const StReadElement& stInside) { return !stInside.stMark.bMet || hasUnread(stInside); });
    }

    StSpot nameSpot(const StReadElement& stElement) const { return m_stRead.oPlaces.nameSpot(*stElement.pElement); }

    StSpot valueSpot(const StReadElement& stElement, std::string_view strAttribute) const
    {
        return m_stRead.oPlaces.valueSpot(*stElement.pElement, strAttribute);
    }

    std::string lineOf(const StReadElement& stElement) const { return std::to_string(nameSpot(stElement).ulLine); }

    const StReadDocument& m_stRead;
    CFileReport&          m_oReport;
};

// The two alarm tables: records of parameters, each with its name and its text.
class CAlarmCheck : public CTableCheck
{
public:
    using CTableCheck::CTableCheck;

    void run()
    {
        for (const StReadElement* pRecord : metInDocument("record"))
        {
            if (m_oReport.isFull())
                return;
            m_pRecord  = pRecord;
            m_bFlawed  = holdsUnread(*pRecord);
            m_mapParam = {};
            for (const StReadElement* pParam : met(*pRecord, "param"))
                takeParam(*pParam);
            if (m_stRead.enKind == EnFileKind::AlarmExplanation)
                checkExplanation();
            else
                checkRegistration();
        }
    }

private:
    struct StParam
    {
        const StReadElement* pElement;
        std::string          strText;
        bool                 bAsWritten; // the file has the text as it is read
    };

    void takeParam(const StReadElement& stParam)
    {
        const std::string strName(stParam.read(PARAM_NAME));
        const auto*       pAsked = stParam.asked(PARAM_NAME);
        if (pAsked == nullptr || !pAsked->isWord(strName)) // told with the words, or as missing
        {
            m_bFlawed = true;
            return;
        }
        std::vector<StParam>& lstParam = m_mapParam[strName];
        // The ids of several lists add up; of anything else the last one counts.
        if (!lstParam.empty() && strName != "FaultIDList")
        {
            m_oReport.add("duplicate-record", valueSpot(stParam, PARAM_NAME),
                          "a second " + inQuotes(strName) + " in one record takes the place of the one in line " +
                              lineOf(*lstParam.back().pElement),
                          about() + "@" + strName);
            lstParam.clear();
        }
        const std::string strText = toLocal(stParam.pElement->getTextContent());
        lstParam.push_back({&stParam, strText, isAsWritten(stParam, strText)});
    }

    bool isAsWritten(const StReadElement& stParam, const std::string& strText) const
    {
        const catalog::StElementPlace& stPlace = m_stRead.oPlaces.element(*stParam.pElement);
        return !strText.empty() && stPlace.bWritten &&
               m_stRead.oPlaces.text()->bytes().compare(stPlace.stTag.nEnd, strText.size(), strText) == 0;
    }

    // A part of the text of a parameter. Of an empty part what comes behind it.
    StSpot textSpot(const StParam& stParam, std::size_t nFrom, std::size_t nBytes) const
    {
        const std::size_t nText = m_stRead.oPlaces.element(*stParam.pElement->pElement).stTag.nEnd;
        return stParam.bAsWritten ? m_stRead.oPlaces.text()->spot(nText + nFrom, std::max<std::size_t>(nBytes, 1))
                                  : nameSpot(*stParam.pElement);
    }

    // What a record is about, without its line.
    std::string about() const
    {
        const auto itId = m_mapParam.find(m_stRead.enKind == EnFileKind::AlarmExplanation ? "AlarmID" : "DevType");
        return m_pRecord->subject() +
               (itId == m_mapParam.end() ? "" : "[" + shortened(itId->second.back().strText) + "]");
    }

    const StParam* find(const char* pszName) const
    {
        const auto itParam = m_mapParam.find(pszName);
        return itParam == m_mapParam.end() ? nullptr : &itParam->second.back();
    }

    // A number of the table; nothing, and the finding, when it is none or has a tail.
    std::optional<unsigned long> checkNumber(const StParam& stParam, std::size_t nFrom, std::size_t nBytes,
                                             const char* pszInstead)
    {
        const std::string strPiece = stParam.strText.substr(nFrom, nBytes);
        const std::string strNumber(trimmed(strPiece));
        const auto        ulNumber = CAlarmTable::readNumber(strPiece);
        if (ulNumber && isDigits(strNumber))
            return ulNumber;
        const std::size_t nBlank   = std::min(strPiece.find_first_not_of(BLANKS), strPiece.size());
        const StSpot      stSpot   = textSpot(stParam, nFrom + nBlank, strNumber.size());
        const std::string strAbout = about() + ":" + shortened(strNumber);
        if (ulNumber)
            m_oReport.add("bad-fault-id", stSpot, inQuotes(strNumber) + " is read as " + std::to_string(*ulNumber),
                          strAbout, {"write the digits alone"});
        else if (strNumber.empty())
            m_oReport.add("bad-fault-id", stSpot, std::string("a number is missing here: ") + pszInstead, strAbout);
        else
            m_oReport.add("bad-fault-id", stSpot,
                          inQuotes(strNumber) + (isDigits(strNumber) ? " is too large: " : " is no number: ") +
                              pszInstead,
                          strAbout);
        return std::nullopt;
    }

    void checkExplanation()
    {
        const StParam* pId = find("AlarmID");
        if (pId == nullptr)
        {
            if (!m_bFlawed)
                m_oReport.add("record-without-effect", nameSpot(*m_pRecord),
                              "the record has no \"AlarmID\" and explains no alarm", about());
            return;
        }
        const auto ulAlarmId =
            checkNumber(*pId, 0, pId->strText.size(), "the record is stored under 0 and explains no alarm");
        if (!ulAlarmId)
            return;
        const auto [itFirst, bFirst] = m_mapAlarm.emplace(*ulAlarmId, m_pRecord);
        if (!bFirst)
            return m_oReport.add("duplicate-record", spotOf(*pId),
                                 "alarm " + std::to_string(*ulAlarmId) + " stands in the record of line " +
                                     lineOf(*itFirst->second) + " already, which is kept",
                                 about());
        if (!m_bFlawed && find("AlarmName") == nullptr && find("Explain") == nullptr)
            m_oReport.add("record-without-effect", nameSpot(*m_pRecord),
                          "the record gives alarm " + std::to_string(*ulAlarmId) + " neither a name nor an explanation",
                          about());
    }

    // The text of a parameter without the blanks around it.
    StSpot spotOf(const StParam& stParam) const
    {
        const std::size_t nBlank = std::min(stParam.strText.find_first_not_of(BLANKS), stParam.strText.size());
        return textSpot(stParam, nBlank, trimmed(stParam.strText).size());
    }

    void checkRegistration()
    {
        constexpr unsigned long ALL_TYPES = std::numeric_limits<unsigned long>::max();
        unsigned long           ulDevType = ALL_TYPES;
        if (const StParam* pType = find("DevType"))
        {
            const auto ulNumber = checkNumber(*pType, 0, pType->strText.size(), "the record applies to device type 0");
            m_bFlawed           = m_bFlawed || !ulNumber;
            ulDevType           = ulNumber.value_or(0);
            if (ulDevType == ALL_TYPES)
                m_oReport.add("bad-fault-id", spotOf(*pType),
                              inQuotes(trimmed(pType->strText)) + " stands for every device type", about());
        }
        const auto itList = m_mapParam.find("FaultIDList");
        if (itList == m_mapParam.end())
        {
            if (!m_bFlawed)
                m_oReport.add("record-without-effect", nameSpot(*m_pRecord),
                              "the record has no \"FaultIDList\" and registers no alarm", about());
            return;
        }
        checkFaultIds(itList->second, ulDevType);
    }

    // Only a record without another mistake is held against the ones before it.
    void checkFaultIds(const std::vector<StParam>& lstList, unsigned long ulDevType)
    {
        std::vector<std::string> lstRepeated;
        StSpot                   stRepeated;
        const StReadElement*     pFirst = nullptr;
        for (const StParam& stList : lstList)
        {
            for (std::size_t nFrom = 0; nFrom <= stList.strText.size() && !m_oReport.isFull();)
            {
                const std::size_t nComma  = std::min(stList.strText.find(',', nFrom), stList.strText.size());
                const std::size_t nPiece  = std::exchange(nFrom, nComma + 1);
                const auto        ulFault = checkNumber(stList, nPiece, nComma - nPiece, "the piece is passed over");
                if (!ulFault || m_bFlawed)
                    continue;
                const auto [itFirst, bFirst] = m_mapFault.emplace(std::pair(ulDevType, *ulFault), m_pRecord);
                if (bFirst)
                    continue;
                if (pFirst == nullptr)
                {
                    const std::size_t nId = stList.strText.find_first_not_of(BLANKS, nPiece);
                    stRepeated            = textSpot(stList, nId, std::to_string(*ulFault).size());
                    pFirst                = itFirst->second;
                }
                lstRepeated.push_back(std::to_string(*ulFault));
            }
        }
        if (pFirst != nullptr)
            m_oReport.add("duplicate-record", stRepeated, repeatedText(lstRepeated, *pFirst), about());
    }

    // One finding for a record that was copied whole.
    std::string repeatedText(const std::vector<std::string>& lstId, const StReadElement& stFirst) const
    {
        std::string strIds;
        for (std::size_t nAt = 0; nAt < std::min(lstId.size(), IDS_SHOWN); ++nAt)
            strIds += (nAt == 0 ? "" : ", ") + lstId[nAt];
        if (lstId.size() > IDS_SHOWN)
            strIds += " and " + std::to_string(lstId.size() - IDS_SHOWN) + " more";
        return (lstId.size() == 1 ? "fault id " : "fault ids ") + strIds + (lstId.size() == 1 ? " is" : " are") +
               " registered by the record of line " + lineOf(stFirst) + " already";
    }

    const StReadElement*                        m_pRecord = nullptr;
    bool                                        m_bFlawed = false; // a mistake in it is told already
    std::map<std::string, std::vector<StParam>> m_mapParam;        // of the record, by name

    std::map<unsigned long, const StReadElement*>                           m_mapAlarm; // the first record of an id
    std::map<std::pair<unsigned long, unsigned long>, const StReadElement*> m_mapFault; // of a device type and fault id
};

// The rules of uploaded files: types, each with its parameters.
class CFileCheckCheck : public CTableCheck
{
public:
    using CTableCheck::CTableCheck;

    void run()
    {
        const Elements lstRoot = metInDocument("zipcheck");
        for (const StReadElement* pRoot : lstRoot)
        {
            if (m_oReport.isFull())
                return;
            if (pRoot == lstRoot.front())
                checkRoot(*pRoot);
            else
                m_oReport.add("duplicate-record", nameSpot(*pRoot),
                              "a second <zipcheck> is passed over, the one of line " + lineOf(*lstRoot.front()) +
                                  " counts",
                              pRoot->subject());
        }
    }

private:
    void checkRoot(const StReadElement& stRoot)
    {
        const Elements lstType = met(stRoot, "uncompressed_type");
        if (lstType.empty() && !holdsUnread(stRoot))
            m_oReport.add("record-without-effect", nameSpot(stRoot),
                          "there is no <uncompressed_type> in it, so the file is invalid", stRoot.subject());
        for (const StReadElement* pType : lstType)
        {
            if (m_oReport.isFull())
                return;
            const std::string strType(pType->read(RULE_VALUE));
            m_strAbout = pType->subject() + "[" + shortened(strType) + "]";
            if (!checkValue(*pType))
                continue;
            const auto [itFirst, bFirst] = m_mapType.emplace(strType, pType);
            if (bFirst)
                checkParams(*pType);
            else
                m_oReport.add("duplicate-record", valueSpot(*pType, RULE_VALUE),
                              inQuotes(strType) + " has its rules in line " + lineOf(*itFirst->second) +
                                  " already, these are dropped",
                              m_strAbout);
        }
    }

    // An empty value ends the read of the file.
    bool checkValue(const StReadElement& stElement)
    {
        if (!stElement.read(RULE_VALUE).empty())
            return true;
        if (!hasUnread(stElement))
            m_oReport.add("bad-rule-value", valueSpot(stElement, RULE_VALUE),
                          tag(stElement.strName) + " has no value, so the file is invalid from here on",
                          m_strAbout + "/" + std::string(stElement.strName));
        return false;
    }

    void checkParams(const StReadElement& stType)
    {
        for (const char16_t* pszName : ParseXMLFile::paramNames())
        {
            const std::string strName  = toLocal(pszName);
            const Elements    lstParam = met(stType, strName);
            for (const StReadElement* pParam : lstParam)
            {
                if (pParam != lstParam.front())
                    m_oReport.add("duplicate-record", nameSpot(*pParam),
                                  "a second " + tag(strName) + " is passed over, the one of line " +
                                      lineOf(*lstParam.front()) + " counts",
                                  m_strAbout + "/" + strName);
                else if (checkValue(*pParam))
                    checkLimit(*pParam);
            }
        }
    }

    // A limit begins with its number; what may stand behind it is the unit.
    void checkLimit(const StReadElement& stParam)
    {
        if (stParam.strName.find("max_") == std::string_view::npos)
            return;
        const std::string_view strValue  = stParam.read(RULE_VALUE);
        const std::string_view strNumber = trimmed(strValue);
        const std::size_t      nEnd      = std::min(strNumber.find_first_not_of("0123456789."), strNumber.size());
        if (strNumber.substr(0, nEnd).find_first_of("123456789") == std::string_view::npos)
            m_oReport.add("bad-rule-value", valueSpot(stParam, RULE_VALUE),
                          inQuotes(strValue) + " is no positive number: " + tag(stParam.strName) + " is a limit",
                          m_strAbout + "/" + std::string(stParam.strName));
    }

    std::string                                 m_strAbout; // the type that is looked at
    std::map<std::string, const StReadElement*> m_mapType;  // the first of a value
};
} // namespace

void checkTable(const StReadDocument& stRead, CFileReport& oReport)
{
    if (stRead.enKind == EnFileKind::AlarmExplanation || stRead.enKind == EnFileKind::AlarmRegistration)
        CAlarmCheck(stRead, oReport).run();
    else if (stRead.enKind == EnFileKind::FileCheck)
        CFileCheckCheck(stRead, oReport).run();
}
} // namespace lint
