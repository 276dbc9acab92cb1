// Names that nobody reads. An element that no reader came to is told once, with all
// that stands in it; around elements that are read an author may put what he likes,
// as lookups go to any depth.
#include "common/XmlRead.h"
#include "lint/DocumentRules.h"
#include "lint/FileKind.h"
#include "lint/Grammar.h"
#include "lint/Nearness.h"

#include <algorithm>

using namespace xercesc;

namespace lint
{
namespace
{
std::string quoted(const std::string& strText)
{
    return "\"" + strText + "\"";
}

std::string tagText(const DOMElement& oElement)
{
    return "<" + toLocal(oElement.getTagName()) + ">";
}

// Attributes of XML itself and of schemas: for other programs.
bool isForOthers(const std::string& strName)
{
    return strName.compare(0, 5, "xmlns") == 0 || strName.compare(0, 4, "xml:") == 0 ||
           strName.compare(0, 4, "xsi:") == 0;
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
        const DOMElement& oRoot = *m_stRead.oDocument.getDocumentElement();
        if (!containsMet(oRoot))
            return checkEmptyFile(oRoot);
        check(oRoot);
    }

private:
    bool containsMet(const DOMElement& oElement) const
    {
        if (m_stRead.oMarks.isMet(oElement))
            return true;
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
        {
            if (containsMet(*pChild))
                return true;
        }
        return false;
    }

    // Nothing in the file is read at all.
    void checkEmptyFile(const DOMElement& oRoot)
    {
        const DOMElement* pFirst = oRoot.getFirstElementChild();
        if (pFirst == nullptr && m_stRead.enKind == EnFileKind::Configuration)
            return; // a type that offers nothing may say so
        std::vector<std::string> lstKnown;
        for (const auto& [strName, stElement] : grammarOf(m_stRead.enKind).stRoot.mapChild)
            lstKnown.push_back(strName);
        if (hasNear(oRoot, lstKnown)) // one misspelt name made it so
            return checkChildren(oRoot);
        m_oReport.add("wrong-root", m_stRead.oPlaces.nameSpot(oRoot),
                      std::string("this is not ") + kindText(m_stRead.enKind) + ": nothing in it is read",
                      subjectOf(oRoot), {std::string(kindText(m_stRead.enKind)) + " holds " + listText(lstKnown)});
    }

    static bool hasNear(const DOMElement& oParent, const std::vector<std::string>& lstKnown)
    {
        for (const DOMElement* pChild = oParent.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
        {
            if (!nearestName(toLocal(pChild->getTagName()), lstKnown).empty())
                return true;
        }
        return !nearestName(toLocal(oParent.getTagName()), lstKnown).empty();
    }

    void check(const DOMElement& oElement)
    {
        const bool bMet  = m_stRead.oMarks.isMet(oElement);
        const bool bRoot = oElement.getParentNode() == &m_stRead.oDocument;
        if (!bMet && !bRoot && isMistaken(oElement))
            return reportElement(oElement);
        checkAttributes(oElement);
        checkText(oElement);
        if (!m_stRead.oMarks.isGivenUp(oElement))
            return checkChildren(oElement);
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
            lose(*pChild); // why the reader gave it up is told by another rule
    }

    void checkChildren(const DOMElement& oElement)
    {
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
            check(*pChild);
    }

    // Of the elements that no reader came to, all but those around others that are
    // read: unless it has something to say itself, or is nearly one that is read.
    bool isMistaken(const DOMElement& oElement) const
    {
        if (!containsMet(oElement))
            return true;
        const std::string strName = toLocal(oElement.getTagName());
        const std::string strNear = nearestName(strName, namesAskedAt(oElement));
        return !strNear.empty() && strName != strNear + "s" && strName != strNear + "es";
    }

    // The names by which the readers looked where this element stands, nearest first.
    std::vector<std::string> namesAskedAt(const DOMElement& oElement) const
    {
        std::vector<std::string> lstName;
        for (const DOMNode* pNode = oElement.getParentNode(); pNode != nullptr; pNode = pNode->getParentNode())
        {
            for (const char16_t* pszName : m_stRead.oMarks.lookups(*pNode))
            {
                std::string strName = toLocal(pszName);
                if (std::find(lstName.begin(), lstName.end(), strName) == lstName.end())
                    lstName.push_back(std::move(strName));
            }
        }
        return lstName;
    }

    void reportElement(const DOMElement& oElement)
    {
        lose(oElement);
        const std::string              strName  = toLocal(oElement.getTagName());
        const std::vector<std::string> lstAsked = namesAskedAt(oElement);
        const std::string              strNear  = nearestName(strName, lstAsked);
        const StSpot                   stSpot   = m_stRead.oPlaces.nameSpot(oElement);
        const std::string              strTag   = tagText(oElement);
        const auto&                    mapPlace = grammarOf(m_stRead.enKind).mapPlace;
        const auto                     itPlace  = mapPlace.find(strName);
        if (itPlace != mapPlace.end() && (strNear.empty() || !isPlace(oElement, itPlace->second)))
            return m_oReport.add("misplaced-element", stSpot, "nothing reads " + strTag + " here", subjectOf(oElement),
                                 {isPlace(oElement, itPlace->second) ? "the reader of " + tagText(*parentOf(oElement)) +
                                                                           " looks for " + listText(lstAsked) + " here"
                                                                     : "it is read " + placesText(itPlace->second)});
        if (!strNear.empty())
            return m_oReport.add("unknown-element", EnSeverity::Error, stSpot, "nothing reads " + strTag,
                                 subjectOf(oElement), {"did you mean <" + strNear + ">?"});
        const EnFileKind enOther = otherKindOf(strName);
        if (enOther != EnFileKind::Unknown)
            return m_oReport.add("foreign-section", stSpot,
                                 strTag + " belongs in " + kindText(enOther) + " and is not read here",
                                 subjectOf(oElement));
        m_oReport.add("unknown-element", stSpot, "nothing reads " + strTag, subjectOf(oElement),
                      {"elements read here: " + listText(lstAsked)});
    }

    static const DOMElement* parentOf(const DOMElement& oElement)
    {
        return static_cast<const DOMElement*>(oElement.getParentNode());
    }

    static std::string lastStep(const std::string& strPath) { return strPath.substr(strPath.rfind('/') + 1); }

    // Whether the element stands right in one of the elements below which it may be
    // read, and was not looked for there this time.
    static bool isPlace(const DOMElement& oElement, const std::set<std::string>& setPath)
    {
        const std::string strParent = toLocal(parentOf(oElement)->getTagName());
        return std::any_of(setPath.begin(), setPath.end(),
                           [&strParent](const std::string& strPath) { return lastStep(strPath) == strParent; });
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

    void checkAttributes(const DOMElement& oElement)
    {
        const std::vector<StAskedAttribute>& lstAsked = m_stRead.oMarks.attributes(oElement);
        const DOMNamedNodeMap&               oMap     = *oElement.getAttributes();
        for (XMLSize_t nAt = 0; nAt < oMap.getLength(); ++nAt)
        {
            const auto*       pAttr   = static_cast<const DOMAttr*>(oMap.item(nAt));
            const std::string strName = toLocal(pAttr->getName());
            const bool        bAsked =
                std::any_of(lstAsked.begin(), lstAsked.end(),
                            [pAttr](const StAskedAttribute& stAsked) { return stAsked.pAttr == pAttr; });
            if (!bAsked && !isForOthers(strName))
                reportAttribute(oElement, *pAttr, strName, lstAsked);
        }
    }

    void reportAttribute(const DOMElement& oElement, const DOMAttr& oAttr, const std::string& strName,
                         const std::vector<StAskedAttribute>& lstAsked)
    {
        std::vector<std::string> lstMissing;
        std::vector<std::string> lstKnown;
        for (const StAskedAttribute& stAsked : lstAsked)
        {
            lstKnown.push_back(toLocal(stAsked.pszName));
            if (stAsked.pAttr == nullptr)
                lstMissing.push_back(lstKnown.back());
        }
        const std::string strNear = nearestName(strName, lstMissing);
        if (strNear.empty() && m_stRead.oMarks.isGivenUp(oElement))
            return; // its reader may have asked for it later
        m_stLost.setText.insert(toLocal(oAttr.getValue()));
        const StSpot      stSpot   = m_stRead.oPlaces.attributeSpot(oElement, oAttr.getName());
        const std::string strWhat  = "nothing reads " + quoted(strName) + " of " + tagText(oElement);
        const std::string strAbout = subjectOf(oElement) + "@" + strName;
        if (!strNear.empty())
            m_oReport.add("unknown-attribute", EnSeverity::Error, stSpot, strWhat, strAbout,
                          {"did you mean " + quoted(strNear) + "?"});
        else if (lstKnown.empty())
            m_oReport.add("unknown-attribute", stSpot, strWhat, strAbout, {"no attribute is read here"});
        else
            m_oReport.add("unknown-attribute", stSpot, strWhat, strAbout,
                          {"attributes read here: " + listText(lstKnown)});
    }

    void checkText(const DOMElement& oElement)
    {
        if (m_stRead.oMarks.isTextRead(oElement))
            return;
        for (const DOMNode* pNode = oElement.getFirstChild(); pNode != nullptr; pNode = pNode->getNextSibling())
        {
            if (pNode->getNodeType() != DOMNode::TEXT_NODE && pNode->getNodeType() != DOMNode::CDATA_SECTION_NODE)
                continue;
            std::string       strText = toLocal(pNode->getNodeValue());
            const std::size_t nBegin  = strText.find_first_not_of(" \t\r\n");
            if (nBegin == std::string::npos)
                continue;
            strText = strText.substr(nBegin, strText.find_last_not_of(" \t\r\n") - nBegin + 1);
            m_oReport.add("stray-text", textSpot(oElement, strText), "nothing reads the text in " + tagText(oElement),
                          subjectOf(oElement) + " text");
            return;
        }
    }

    // The DOM keeps no place of a text: it is looked for in the element.
    StSpot textSpot(const DOMElement& oElement, const std::string& strText) const
    {
        const catalog::StElementPlace& stPlace = m_stRead.oPlaces.element(oElement);
        const std::string_view         strLine = std::string_view(strText).substr(0, strText.find('\n'));
        const std::size_t              nAt     = m_stRead.oPlaces.text()->bytes().find(strLine, stPlace.stTag.nEnd);
        return nAt < stPlace.stWhole.nEnd ? m_stRead.oPlaces.text()->spot(nAt, strLine.size())
                                          : m_stRead.oPlaces.nameSpot(oElement);
    }

    // The values in and below an element that is not read.
    void lose(const DOMElement& oElement)
    {
        const DOMNamedNodeMap& oMap = *oElement.getAttributes();
        for (XMLSize_t nAt = 0; nAt < oMap.getLength(); ++nAt)
            m_stLost.setText.insert(toLocal(oMap.item(nAt)->getNodeValue()));
        for (const DOMElement* pChild = oElement.getFirstElementChild(); pChild != nullptr;
             pChild                   = pChild->getNextElementSibling())
            lose(*pChild);
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
        const catalog::StRange stEnd = stComment.nElement == catalog::NO_ELEMENT
                                           ? catalog::StRange{stComment.stRange.nEnd, stComment.stRange.nEnd}
                                           : catalog::StRange{oPlaces.elements()[stComment.nElement].stWhole.nEnd,
                                                              oPlaces.elements()[stComment.nElement].stWhole.nEnd};
        oReport.takeComment(stComment.strText, oPlaces.spot(stComment.stRange), oPlaces.spot(stEnd));
    }
}

std::string subjectOf(const DOMElement& oElement)
{
    std::string strSubject;
    for (const DOMNode* pNode = &oElement; pNode != nullptr && pNode->getNodeType() == DOMNode::ELEMENT_NODE;
         pNode                = pNode->getParentNode())
    {
        const auto&       oNode   = *static_cast<const DOMElement*>(pNode);
        std::string       strStep = toLocal(oNode.getTagName());
        const std::string strId   = toLocal(oNode.getAttribute(u"id"));
        if (!strId.empty())
            strStep += "[" + strId + "]";
        strSubject = strSubject.empty() ? strStep : strStep + "/" + strSubject;
    }
    return strSubject;
}
} // namespace lint
