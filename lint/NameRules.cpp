// Names that nobody reads. An element that no reader came to is told once, with all
// that stands in it; around elements that are read an author may put what he likes,
// as lookups go to any depth.
#include "common/XmlText.h"
#include "lint/DocumentRules.h"
#include "lint/FileKind.h"
#include "lint/Grammar.h"
#include "lint/Nearness.h"
#include "lint/Phrases.h"

#include <algorithm>

using namespace xercesc;

namespace lint
{
namespace
{
// Attributes of XML itself and of schemas: for other programs.
bool isForOthers(std::string_view strName)
{
    return strName.substr(0, 5) == "xmlns" || strName.substr(0, 4) == "xml:" || strName.substr(0, 4) == "xsi:";
}

class CNameCheck
{
public:
    CNameCheck(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
        : m_stRead(stRead), m_oReport(oReport), m_stLost(stLost)
    {
    }

    void run()
    {
        const StReadElement& stRoot = m_stRead.oTree.root();
        if (stRoot.bHoldsMet)
            check(stRoot);
        else
            checkEmptyFile(stRoot);
    }

private:
    // Nothing in the file is read at all.
    void checkEmptyFile(const StReadElement& stRoot)
    {
        const bool bEmpty = stRoot.pEnd == &stRoot + 1;
        if (bEmpty && m_stRead.enKind == EnFileKind::Configuration)
            return; // a type that offers nothing may say so
        std::vector<std::string> lstKnown;
        for (const auto& [strName, stElement] : grammarOf(m_stRead.enKind).stRoot.mapChild)
            lstKnown.push_back(strName);
        if (hasNear(stRoot, lstKnown)) // one misspelt name made it so
            return checkChildren(stRoot);
        m_oReport.add("wrong-root", nameSpot(stRoot),
                      std::string("this is not ") + kindText(m_stRead.enKind) + ": nothing in it is read",
                      stRoot.subject(), {std::string(kindText(m_stRead.enKind)) + " holds " + listText(lstKnown)});
    }

    static bool hasNear(const StReadElement& stRoot, const std::vector<std::string>& lstKnown)
    {
        for (const StReadElement* pChild = &stRoot + 1; pChild != stRoot.pEnd; pChild = pChild->pEnd)
        {
            if (!nearestName(pChild->strName, lstKnown).empty())
                return true;
        }
        return !nearestName(stRoot.strName, lstKnown).empty();
    }

    void check(const StReadElement& stElement)
    {
        if (m_oReport.isFull())
            return;
        if (!stElement.stMark.bMet && stElement.pParent != nullptr && isMistaken(stElement))
            return reportElement(stElement);
        checkAttributes(stElement);
        checkText(stElement);
        if (!stElement.stMark.bGivenUp)
            return checkChildren(stElement);
        for (const StReadElement* pInside = &stElement + 1; pInside != stElement.pEnd; ++pInside)
            lose(*pInside); // why the reader gave it up is told by another rule
    }

    void checkChildren(const StReadElement& stElement)
    {
        for (const StReadElement* pChild = &stElement + 1; pChild != stElement.pEnd; pChild = pChild->pEnd)
            check(*pChild);
    }

    StSpot nameSpot(const StReadElement& stElement) const { return m_stRead.oPlaces.nameSpot(*stElement.pElement); }

    // Of the elements that no reader came to, all but those around others that are
    // read: unless it has something to say itself, or is nearly one that is read.
    bool isMistaken(const StReadElement& stElement) const
    {
        if (!stElement.bHoldsMet)
            return true;
        const std::string strName(stElement.strName);
        const std::string strNear = nearestName(strName, namesAskedAt(stElement));
        return !strNear.empty() && strName != strNear + "s" && strName != strNear + "es";
    }

    // The names by which the readers looked where this element stands, nearest first.
    std::vector<std::string> namesAskedAt(const StReadElement& stElement) const
    {
        std::vector<std::string> lstName;
        const auto               fnTake = [&lstName](const StQuestions& stAsked)
        {
            for (const std::string& strName : stAsked.lstElement)
            {
                if (std::find(lstName.begin(), lstName.end(), strName) == lstName.end())
                    lstName.push_back(strName);
            }
        };
        for (const StReadElement* pAbove = stElement.pParent; pAbove != nullptr; pAbove = pAbove->pParent)
            fnTake(*pAbove->pAsked);
        fnTake(m_stRead.oTree.askedOfDocument());
        return lstName;
    }

    void reportElement(const StReadElement& stElement)
    {
        for (const StReadElement* pInside = &stElement; pInside != stElement.pEnd; ++pInside)
            lose(*pInside);
        const std::string              strName(stElement.strName);
        const std::vector<std::string> lstAsked = namesAskedAt(stElement);
        const std::string              strNear  = nearestName(strName, lstAsked);
        const StSpot                   stSpot   = nameSpot(stElement);
        const std::string              strTag   = tag(strName);
        const auto&                    mapPlace = grammarOf(m_stRead.enKind).mapPlace;
        const auto                     itPlace  = mapPlace.find(strName);
        if (itPlace != mapPlace.end() && (strNear.empty() || !isPlace(stElement, itPlace->second)))
            return m_oReport.add(
                "misplaced-element", stSpot, "nothing reads " + strTag + " here", stElement.subject(),
                {isPlace(stElement, itPlace->second)
                     ? "the reader of " + tag(stElement.pParent->strName) + " looks for " + listText(lstAsked) + " here"
                     : "it is read " + placesText(itPlace->second)});
        if (!strNear.empty())
            return m_oReport.add("unknown-element", EnSeverity::Error, stSpot, "nothing reads " + strTag,
                                 stElement.subject(), {"did you mean <" + strNear + ">?"});
        const EnFileKind enOther = otherKindOf(strName);
        if (enOther != EnFileKind::Unknown)
            return m_oReport.add("foreign-section", stSpot,
                                 strTag + " belongs in " + kindText(enOther) + " and is not read here",
                                 stElement.subject());
        m_oReport.add("unknown-element", stSpot, "nothing reads " + strTag, stElement.subject(),
                      {"elements read here: " + listText(lstAsked)});
    }

    static std::string lastStep(const std::string& strPath) { return strPath.substr(strPath.rfind('/') + 1); }

    // Whether the element stands right in one of the elements below which it may be
    // read, and was not looked for there this time.
    static bool isPlace(const StReadElement& stElement, const std::set<std::string>& setPath)
    {
        return std::any_of(setPath.begin(), setPath.end(),
                           [&](const std::string& strPath) { return lastStep(strPath) == stElement.pParent->strName; });
    }

    // "below <Parameter> and <SubOperation>".
    static std::string placesText(const std::set<std::string>& setPath)
    {
        std::set<std::string> setParent;
        for (const std::string& strPath : setPath)
            setParent.insert("<" + lastStep(strPath) + ">");
        if (setPath.count("") != 0)
            return "at the top level";
        return "below " + listText({setParent.begin(), setParent.end()});
    }

    // A kind of file at whose top level the name is read.
    EnFileKind otherKindOf(const std::string& strName) const
    {
        for (const EnFileKind enKind : {EnFileKind::Configuration, EnFileKind::Module, EnFileKind::Capacity,
                                        EnFileKind::TelnetCheck, EnFileKind::AlarmExplanation, EnFileKind::FileCheck})
        {
            if (enKind != m_stRead.enKind && grammarOf(enKind).stRoot.mapChild.count(strName) != 0)
                return enKind;
        }
        return EnFileKind::Unknown;
    }

    void checkAttributes(const StReadElement& stElement)
    {
        for (const StWrittenAttribute& stWritten : stElement.lstAttribute)
        {
            if (!stWritten.isRead() && !isForOthers(stWritten.strName) && !m_oReport.isFull())
                reportAttribute(stElement, stWritten);
        }
    }

    void reportAttribute(const StReadElement& stElement, const StWrittenAttribute& stWritten)
    {
        std::vector<std::string> lstMissing;
        std::vector<std::string> lstKnown;
        for (const StAskedAttribute& stAsked : stElement.pAsked->lstAttribute)
        {
            lstKnown.push_back(stAsked.strName);
            if (!stElement.isRead(stAsked.strName))
                lstMissing.push_back(stAsked.strName);
        }
        const std::string strNear = nearestName(stWritten.strName, lstMissing);
        if (strNear.empty() && stElement.stMark.bGivenUp)
            return; // its reader may have asked for it later
        m_stLost.setText.emplace(stWritten.strValue);
        const StSpot      stSpot   = m_stRead.oPlaces.attributeSpot(*stElement.pElement, stWritten.strName);
        const std::string strWhat  = "nothing reads " + inQuotes(stWritten.strName) + " of " + tag(stElement.strName);
        const std::string strAbout = stElement.subject() + "@" + shortened(stWritten.strName);
        if (!strNear.empty())
            m_oReport.add("unknown-attribute", EnSeverity::Error, stSpot, strWhat, strAbout,
                          {"did you mean " + inQuotes(strNear) + "?"});
        else if (lstKnown.empty())
            m_oReport.add("unknown-attribute", stSpot, strWhat, strAbout, {"no attribute is read here"});
        else
            m_oReport.add("unknown-attribute", stSpot, strWhat, strAbout,
                          {"attributes read here: " + listText(lstKnown)});
    }

    void checkText(const StReadElement& stElement)
    {
        if (stElement.stMark.bTextRead)
            return;
        for (const DOMNode* pNode = stElement.pElement->getFirstChild(); pNode != nullptr;
             pNode                = pNode->getNextSibling())
        {
            if ((pNode->getNodeType() != DOMNode::TEXT_NODE && pNode->getNodeType() != DOMNode::CDATA_SECTION_NODE) ||
                isBlank(pNode->getNodeValue()))
                continue;
            const std::string strText(trimmed(toLocal(pNode->getNodeValue())));
            m_oReport.add("stray-text", textSpot(stElement, strText),
                          "nothing reads the text in " + tag(stElement.strName), stElement.subject() + " text");
            return;
        }
    }

    static bool isBlank(std::u16string_view strText)
    {
        return strText.find_first_not_of(u" \t\r\n") == std::u16string_view::npos;
    }

    // The DOM keeps no place of a text: it is looked for in the element.
    StSpot textSpot(const StReadElement& stElement, const std::string& strText) const
    {
        const catalog::StElementPlace& stPlace = m_stRead.oPlaces.element(*stElement.pElement);
        const std::string_view         strLine = std::string_view(strText).substr(0, strText.find('\n'));
        const std::string_view         strBytes =
            std::string_view(m_stRead.oPlaces.text()->bytes()).substr(0, stPlace.stWhole.nEnd);
        const std::size_t nAt = strBytes.find(strLine, stPlace.stTag.nEnd);
        return nAt == std::string_view::npos ? nameSpot(stElement) : m_stRead.oPlaces.text()->spot(nAt, strLine.size());
    }

    // The values in an element that is not read.
    void lose(const StReadElement& stElement)
    {
        for (const StWrittenAttribute& stWritten : stElement.lstAttribute)
            m_stLost.setText.emplace(stWritten.strValue);
    }

    const StReadDocument& m_stRead;
    CFileReport&          m_oReport;
    StLostNames&          m_stLost;
};
} // namespace

void checkNames(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost)
{
    CNameCheck(stRead, oReport, stLost).run();
}

void takeAllowances(const catalog::CDocumentPlaces& oPlaces, CFileReport& oReport)
{
    for (const catalog::StCommentPlace& stComment : oPlaces.comments())
    {
        if (oReport.isFull())
            return;
        const catalog::StRange stEnd = stComment.nElement == catalog::NO_ELEMENT
                                           ? catalog::StRange{stComment.stRange.nEnd, stComment.stRange.nEnd}
                                           : catalog::StRange{oPlaces.elements()[stComment.nElement].stWhole.nEnd,
                                                              oPlaces.elements()[stComment.nElement].stWhole.nEnd};
        oReport.takeComment(stComment.strText, oPlaces.spot(stComment.stRange), oPlaces.spot(stEnd));
    }
}
} // namespace lint
