// Fuzz target: a capacity document prunes the record of a common file.
#include "FuzzSupport.h"

#include "common/XmlRead.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"
#include "records/Vocabulary.h"

#include <memory>

namespace
{
constexpr const char* OID = "1.3.6.1.4.1.32473.4.4";

// One operation at least in every list that can be pruned.
constexpr const char* COMMON_FILE = R"(<ServerConfiguration>
<DeviceOperation><Operation id="Backup"><Parameter id="ContentType"><Option id="CONFIG" value="1"/>
<Option id="LOG" value="2"/></Parameter></Operation><Operation id="LoadData"/></DeviceOperation>
<TaskOperation><Operation id="LoadSoftware"><Parameter id="P"><Option id="FTP" value="1"/></Parameter></Operation>
<Operation id="ActivatePatch"/></TaskOperation>
<PatchOperation><Operation id="LoadPatch"/></PatchOperation>
<CheckOperations><Operation id="PreCheck"><Parameter id="Cpu"/></Operation></CheckOperations>
<CustomOperations><Operation id="Backup"/><Operation id="Site"/></CustomOperations>
<OtherOperation id="Trap" isSupported="1"><Parameter id="ContentType"><Option id="LOG" value="2"/></Parameter>
</OtherOperation>
<DeviceViewPopupMenu><Item type="DeviceOperation" id="Backup"/></DeviceViewPopupMenu>
<DeviceViewTab><Item type="TaskOperation" id="LoadSoftware"/></DeviceViewTab>
<PatchViewPopupMenu><Patch type="HotPatch"><Item type="PatchOperation" id="LoadPatch"/></Patch></PatchViewPopupMenu>
<TaskType id="SoftwareUpgrade"><TaskConfigOper type="TaskOperation" id="LoadSoftware"/>
<TaskConfigOper type="TaskOperation" id="ActivatePatch"/></TaskType>
</ServerConfiguration>)";

std::unique_ptr<StAsnDevTypeVerXMLInfo> readCommon()
{
    StAsnDevTypeVerXMLInfo* pInfo = nullptr;
    require(CDevTypeXMLResReader("AB 12/X", "V1", true).parseCommonXML(pInfo) == DC_RESULT_OK,
            "the common file is read");
    return std::unique_ptr<StAsnDevTypeVerXMLInfo>(pInfo);
}

// The capacity list of the first entry with the identifier.
std::list<StAsnOperation> readCapacity(const CXmlParser& oParser)
{
    std::list<StAsnOperation> lstCapacity;
    for (const xercesc::DOMElement* pEntry : oParser.elements(u"upgradecapacity"))
    {
        const xercesc::DOMAttr* pOid = pEntry->getAttributeNode(u"sysoid");
        if (pOid == nullptr || !xercesc::XMLString::equals(pOid->getValue(), u"1.3.6.1.4.1.32473.4.4"))
            continue;
        CCapacityXMLConfig().fillOperInfo(pEntry, lstCapacity);
        break;
    }
    return lstCapacity;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const CFuzzRoot s_oRoot;
    static const bool      s_bOpen =
        (s_oRoot.open(""),
         s_oRoot.write(std::string(Vocabulary::CONFIG_FOLDER).append(Vocabulary::COMMON_FILE_NAME), COMMON_FILE));
    static const std::unique_ptr<StAsnDevTypeVerXMLInfo> s_pCommon = readCommon();
    static const std::unique_ptr<CXmlParser>             s_pParser = CXmlParser::create();
    require(s_bOpen && s_pParser != nullptr, "the parser starts");

    s_pParser->parseText(std::string_view(reinterpret_cast<const char*>(pData), nSize));
    auto*                   pMade    = new StAsnDevTypeVerXMLInfo();
    StAsnDevTypeVerXMLInfo* pInfo    = pMade;
    const std::uint32_t     ulResult = CCapacityXMLConfig().parseCapacityXML(OID, s_pParser.get(), pInfo);
    const std::unique_ptr<StAsnDevTypeVerXMLInfo> pOwner(pInfo);
    if (s_pParser->getDocument() == nullptr)
    {
        require(ulResult == DC_RESULT_XML_ERROR && pInfo == pMade, "a refused document is an error");
        require(*pInfo == StAsnDevTypeVerXMLInfo(), "a refused document leaves no records");
        return 0;
    }
    require(ulResult == DC_RESULT_OK && pInfo != nullptr, "a document is read");

    // What the reader gives is the common configuration, pruned; pruning again takes nothing more.
    const std::list<StAsnOperation> lstCapacity = readCapacity(*s_pParser);
    StAsnDevTypeVerXMLInfo          stPruned    = *s_pCommon;
    stPruned.strDevType                         = pInfo->strDevType;
    stPruned.strDevTypeVer                      = pInfo->strDevTypeVer;
    CCapacityXMLConfig().combineXMLInfo(&stPruned, lstCapacity);
    requireSame(*pInfo, stPruned);
    const std::size_t nRecords = countRecords(stPruned);
    require(nRecords <= countRecords(*s_pCommon), "pruning adds nothing");
    CCapacityXMLConfig().combineXMLInfo(&stPruned, lstCapacity);
    require(countRecords(stPruned) == nRecords, "pruning twice is pruning once");
    return 0;
}
