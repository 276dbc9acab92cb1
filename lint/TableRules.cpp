// Alarm tables and file-check rules: records that count for nothing, numbers that
// read as others, and what is there already. What a misspelt name has taken from a
// record is told with the name, not here again.
#include "alarm/AlarmTable.h"
#include "common/XmlRead.h"
#include "filecheck/ParseXMLFile.h"
#include "lint/DocumentRules.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <utility>

using namespace xercesc;

namespace lint
{
namespace
{
constexpr const char*     BLANKS     = " \t\n\v\f\r";
constexpr std::size_t     IDS_SHOWN  = 3;
constexpr const char16_t* PARAM_NAME = u"name";
constexpr const char16_t* RULE_VALUE = u"value";

std::string quoted(const std::string& strText)
{
    return "\"" + strText + "\"";
}

std::string trimmed(const std::string& strText)
{
    const std::size_t nBegin = strText.find_first_not_of(BLANKS);
    return nBegin == std::string::npos ? std::string()
                                       : strText.substr(nBegin, strText.find_last_not_of(BLANKS) - nBegin + 1);
}

bool isDigits(const std::string& strText)
{
    return !strText.empty() && strText.find_first_not_of("0123456789") == std::string::npos;
}

const XMLCh* attributeOf(const DOMElement& oElement, const char16_t* pszName)
{
    return oElement.getAttribute(pszName);
}

// What is common to the rules of tables: the document, and where things stand.
class CTableCheck
{
public:
    CTableCheck(const StReadDocument& stRead, CFileReport& oReport) : m_stRead(stRead), m_oReport(oReport) {}

protected:
    // The elements of a name that their reader came to, in document order.
    std::vector<const DOMElement*> met(const DOMElement& oBelow, const char16_t* pszName) const
    {
        std::vector<const DOMElement*> lstElement;
        for (const DOMElement& oElement : CElements(&oBelow, pszName))
        {
            if (m_stRead.oMarks.isMet(oElement))
                lstElement.push_back(&oElement);
        }
        return lstElement;
    }

    std::vector<const DOMElement*> metInDocument(const char16_t* pszName) const
    {
        const DOMElement&              oRoot      = *m_stRead.oDocument.getDocumentElement();
        std::vector<const DOMElement*> lstElement = met(oRoot, pszName);
        if (XMLString::equals(oRoot.getTagName(), pszName))
            lstElement.insert(lstElement.begin(), &oRoot);
        return lstElement;
    }

    // Whether an attribute stands there that nobody reads: perhaps the one that is missing.
    bool hasUnread(const DOMElement& oElement) const
    {
        const std::vector<StAskedAttribute>& lstAsked = m_stRead.oMarks.attributes(oElement);
        const DOMNamedNodeMap&               oMap     = *oElement.getAttributes();
        for (XMLSize_t nAt = 0; nAt < oMap.getLength(); ++nAt)
        {
            if (std::none_of(lstAsked.begin(), lstAsked.end(),
                             [&](const StAskedAttribute& stAsked) { return stAsked.pAttr == oMap.item(nAt); }))
                return true;
        }
        return false;
    }

    bool holdsUnread(const DOMElement& oElement) const
    {
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
        {
            if (!m_stRead.oMarks.isMet(*pChild) || hasUnread(*pChild) || holdsUnread(*pChild))
                return true;
        }
        return false;
    }

    StSpot nameSpot(const DOMElement& oElement) const { return m_stRead.oPlaces.nameSpot(oElement); }

    std::string lineOf(const DOMElement& oElement) const { return std::to_string(nameSpot(oElement).ulLine); }

    // A part of an element's text, where the file has that text as it is read. Of an
    // empty part what comes behind it.
    StSpot textSpot(const DOMElement& oElement, const std::string& strText, std::size_t nFrom, std::size_t nBytes) const
    {
        const catalog::StElementPlace& stPlace  = m_stRead.oPlaces.element(oElement);
        const std::string&             strBytes = m_stRead.oPlaces.text()->bytes();
        if (strText.empty() || !stPlace.bWritten || strBytes.compare(stPlace.stTag.nEnd, strText.size(), strText) != 0)
            return nameSpot(oElement);
        return m_stRead.oPlaces.text()->spot(stPlace.stTag.nEnd + nFrom, std::max<std::size_t>(nBytes, 1));
    }

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
        for (const DOMElement* pRecord : metInDocument(u"record"))
        {
            m_pRecord  = pRecord;
            m_bFlawed  = holdsUnread(*pRecord);
            m_mapParam = {};
            for (const DOMElement* pParam : met(*pRecord, u"param"))
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
        const DOMElement* pElement;
        std::string       strText;
    };

    void takeParam(const DOMElement& oParam)
    {
        const std::string strName = toLocal(attributeOf(oParam, PARAM_NAME));
        if (!isKnown(oParam, strName)) // told with the words, or as missing
        {
            m_bFlawed = true;
            return;
        }
        std::vector<StParam>& lstParam = m_mapParam[strName];
        // The ids of several lists add up; of anything else the last one counts.
        if (!lstParam.empty() && strName != "FaultIDList")
        {
            m_oReport.add("duplicate-record", m_stRead.oPlaces.valueSpot(oParam, PARAM_NAME),
                          "a second " + quoted(strName) + " in one record takes the place of the one in line " +
                              lineOf(*lstParam.back().pElement),
                          about() + "@" + strName);
            lstParam.clear();
        }
        lstParam.push_back({&oParam, toLocal(oParam.getTextContent())});
    }

    bool isKnown(const DOMElement& oParam, const std::string& strName) const
    {
        for (const StAskedAttribute& stAsked : m_stRead.oMarks.attributes(oParam))
        {
            if (XMLString::equals(stAsked.pszName, PARAM_NAME))
                return std::find(stAsked.lstWord.begin(), stAsked.lstWord.end(), strName) != stAsked.lstWord.end();
        }
        return false;
    }

    // What a record is about, without its line.
    std::string about() const
    {
        const auto itId = m_mapParam.find(m_stRead.enKind == EnFileKind::AlarmExplanation ? "AlarmID" : "DevType");
        return subjectOf(*m_pRecord) + (itId == m_mapParam.end() ? "" : "[" + itId->second.back().strText + "]");
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
        const std::string strPiece  = stParam.strText.substr(nFrom, nBytes);
        const std::string strNumber = trimmed(strPiece);
        const auto        ulNumber  = CAlarmTable::readNumber(strPiece);
        if (ulNumber && isDigits(strNumber))
            return ulNumber;
        const std::size_t nBlank   = std::min(strPiece.find_first_not_of(BLANKS), strPiece.size());
        const StSpot      stSpot   = textSpot(*stParam.pElement, stParam.strText, nFrom + nBlank, strNumber.size());
        const std::string strAbout = about() + ":" + strNumber;
        if (ulNumber)
            m_oReport.add("bad-fault-id", stSpot, quoted(strNumber) + " is read as " + std::to_string(*ulNumber),
                          strAbout, {"write the digits alone"});
        else if (strNumber.empty())
            m_oReport.add("bad-fault-id", stSpot, std::string("a number is missing here: ") + pszInstead, strAbout);
        else
            m_oReport.add("bad-fault-id", stSpot,
                          quoted(strNumber) + (isDigits(strNumber) ? " is too large: " : " is no number: ") +
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
        return textSpot(*stParam.pElement, stParam.strText, nBlank, trimmed(stParam.strText).size());
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
                              quoted(trimmed(pType->strText)) + " stands for every device type", about());
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
        const DOMElement*        pFirst = nullptr;
        for (const StParam& stList : lstList)
        {
            for (std::size_t nFrom = 0; nFrom <= stList.strText.size();)
            {
                const std::size_t nComma  = std::min(stList.strText.find(',', nFrom), stList.strText.size());
                const std::size_t nPiece  = std::exchange(nFrom, nComma + 1);
                const auto        ulFault = checkNumber(stList, nPiece, nComma - nPiece, "the piece is passed over");
                if (!ulFault || m_bFlawed)
                    continue;
                const auto [itFirst, bFirst] = m_mapFault.emplace(std::pair(ulDevType, *ulFault), m_pRecord);
                if (bFirst)
                    continue;
                if (lstRepeated.empty())
                {
                    const std::size_t nId = stList.strText.find_first_not_of(BLANKS, nPiece);
                    stRepeated = textSpot(*stList.pElement, stList.strText, nId, std::to_string(*ulFault).size());
                    pFirst     = itFirst->second;
                }
                lstRepeated.push_back(std::to_string(*ulFault));
            }
        }
        if (!lstRepeated.empty())
            m_oReport.add("duplicate-record", stRepeated, repeatedText(lstRepeated, *pFirst), about());
    }

    // One finding for a record that was copied whole.
    std::string repeatedText(const std::vector<std::string>& lstId, const DOMElement& oFirst) const
    {
        std::string strIds;
        for (std::size_t nAt = 0; nAt < std::min(lstId.size(), IDS_SHOWN); ++nAt)
            strIds += (nAt == 0 ? "" : ", ") + lstId[nAt];
        if (lstId.size() > IDS_SHOWN)
            strIds += " and " + std::to_string(lstId.size() - IDS_SHOWN) + " more";
        return (lstId.size() == 1 ? "fault id " : "fault ids ") + strIds + (lstId.size() == 1 ? " is" : " are") +
               " registered by the record of line " + lineOf(oFirst) + " already";
    }

    const DOMElement*                           m_pRecord = nullptr;
    bool                                        m_bFlawed = false; // a mistake in it is told already
    std::map<std::string, std::vector<StParam>> m_mapParam;        // of the record, by name

    std::map<unsigned long, const DOMElement*>                           m_mapAlarm; // the first record of an id
    std::map<std::pair<unsigned long, unsigned long>, const DOMElement*> m_mapFault; // of a device type and fault id
};

// The rules of uploaded files: types, each with its parameters.
class CFileCheckCheck : public CTableCheck
{
public:
    using CTableCheck::CTableCheck;

    void run()
    {
        const std::vector<const DOMElement*> lstRoot = metInDocument(u"zipcheck");
        for (const DOMElement* pRoot : lstRoot)
        {
            if (pRoot == lstRoot.front())
                checkRoot(*pRoot);
            else
                m_oReport.add("duplicate-record", nameSpot(*pRoot),
                              "a second <zipcheck> is passed over, the one of line " + lineOf(*lstRoot.front()) +
                                  " counts",
                              subjectOf(*pRoot));
        }
    }

private:
    void checkRoot(const DOMElement& oRoot)
    {
        const std::vector<const DOMElement*> lstType = met(oRoot, u"uncompressed_type");
        if (lstType.empty() && !holdsUnread(oRoot))
            m_oReport.add("record-without-effect", nameSpot(oRoot),
                          "there is no <uncompressed_type> in it, so the file is invalid", subjectOf(oRoot));
        for (const DOMElement* pType : lstType)
        {
            m_strAbout = subjectOf(*pType) + "[" + valueOf(*pType) + "]";
            if (!checkValue(*pType))
                continue;
            const auto [itFirst, bFirst] = m_mapType.emplace(valueOf(*pType), pType);
            if (bFirst)
                checkParams(*pType);
            else
                m_oReport.add("duplicate-record", m_stRead.oPlaces.valueSpot(*pType, RULE_VALUE),
                              quoted(valueOf(*pType)) + " has its rules in line " + lineOf(*itFirst->second) +
                                  " already, these are dropped",
                              m_strAbout);
        }
    }

    static std::string valueOf(const DOMElement& oElement) { return toLocal(attributeOf(oElement, RULE_VALUE)); }

    // An empty value ends the read of the file.
    bool checkValue(const DOMElement& oElement)
    {
        if (!valueOf(oElement).empty())
            return true;
        if (!hasUnread(oElement))
            m_oReport.add("bad-rule-value", m_stRead.oPlaces.valueSpot(oElement, RULE_VALUE),
                          "<" + toLocal(oElement.getTagName()) + "> has no value, so the file is invalid from here on",
                          m_strAbout + "/" + toLocal(oElement.getTagName()));
        return false;
    }

    void checkParams(const DOMElement& oType)
    {
        for (const char16_t* pszName : ParseXMLFile::paramNames())
        {
            const std::vector<const DOMElement*> lstParam = met(oType, pszName);
            for (const DOMElement* pParam : lstParam)
            {
                if (pParam != lstParam.front())
                    m_oReport.add("duplicate-record", nameSpot(*pParam),
                                  "a second <" + toLocal(pszName) + "> is passed over, the one of line " +
                                      lineOf(*lstParam.front()) + " counts",
                                  m_strAbout + "/" + toLocal(pszName));
                else if (checkValue(*pParam))
                    checkLimit(*pParam, toLocal(pszName));
            }
        }
    }

    // A limit begins with its number; what may stand behind it is the unit.
    void checkLimit(const DOMElement& oParam, const std::string& strName)
    {
        if (strName.find("max_") == std::string::npos)
            return;
        const std::string strValue  = valueOf(oParam);
        const std::string strNumber = trimmed(strValue);
        const std::size_t nEnd      = std::min(strNumber.find_first_not_of("0123456789."), strNumber.size());
        if (strNumber.substr(0, nEnd).find_first_of("123456789") == std::string::npos)
            m_oReport.add("bad-rule-value", m_stRead.oPlaces.valueSpot(oParam, RULE_VALUE),
                          quoted(strValue) + " is no positive number: <" + strName + "> is a limit",
                          m_strAbout + "/" + strName);
    }

    std::string                              m_strAbout; // the type that is looked at
    std::map<std::string, const DOMElement*> m_mapType;  // the first of a value
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
