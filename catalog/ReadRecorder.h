// CReadRecorder: listens while the readers make records, and keeps where each came
// from, by its address: records are made in place and stay there. What the readers
// leave out or take out again is kept as the entry of a catalog.
// Used by CCatalogMaker, one for the modules and one for the type it is at. One
// thread; the documents must live as long as they are read.
#ifndef OPERATIONXML_CATALOG_READRECORDER_H
#define OPERATIONXML_CATALOG_READRECORDER_H

#include "catalog/Catalog.h"
#include "catalog/PlacedParser.h"
#include "common/ReadObserver.h"

#include <tsl/robin_map.h>

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace catalog
{
// One attribute that was read for a record.
struct StSeenAttribute
{
    std::u16string_view strName;
    EnReadAs            enReadAs = EnReadAs::Text;
    StPlace             stPlace; // of the value; line 0 when it is not there
};

// What the address of a record stands for.
struct StSeen
{
    StPlace     stPlace; // of the element's name
    EnOrigin    enOrigin    = EnOrigin::OwnFile;
    const void* pParent     = nullptr; // the record it is in; null in a section
    const void* pList       = nullptr;
    std::size_t nAttribute  = 0; // the first one that was read for it
    std::size_t nAttributes = 0;
};

// A record that is not there any more.
struct StLost
{
    std::ptrdiff_t nList = 0; // its list, in bytes from the record that has it; in a section: IN_SECTION
    std::size_t    nRow  = 0; // of the table of sections
    StEntry        stEntry;

    static constexpr std::ptrdiff_t IN_SECTION = -1;
};

// What a module file says outside the sections.
struct StModuleHead
{
    std::string                  strName;
    StPlace                      stName;
    std::vector<StSupportedType> lstSupported;
    std::vector<StLost>          lstLost; // of the sections
};

class CReadRecorder final : public CReadObserver
{
public:
    // With the recorder of the modules, for the records that are copied from there.
    explicit CReadRecorder(const CReadRecorder* pModules = nullptr) : m_pModules(pModules) {}

    // A new read begins; what was kept of the last one is forgotten.
    void clear();

    // A document is about to be read. The file is the number in the places.
    void documentBegun(CPlacedParser& oParser, std::uint32_t ulFile, EnOrigin enOrigin);

    // All modules have been read; what the file of a number says.
    void                endModules();
    const StModuleHead& module(std::uint32_t ulFile) const;

    const StSeen* find(const void* pRecord) const;
    // Where the value of a field of it was read from.
    StPlace fieldPlace(const StSeen& stSeen, std::string_view strField) const;
    // What was lost from the lists of a record, or from the list of a section.
    const std::vector<StLost>& lost(const void* pParent) const;

    std::vector<StCapacityDocument> takeCapacity() { return std::move(m_lstCapacity); }

    void lookup(const xercesc::DOMNode& /*oBelow*/, const char16_t* /*pszName*/) override {}
    void elementMet(const xercesc::DOMElement& /*oElement*/) override {}
    void textRead(const xercesc::DOMElement& /*oElement*/) override {}
    void attributeRead(const StAttributeRead& stRead) override;
    void recordBegun(const xercesc::DOMElement& oElement, const void* pRecord, const void* pList) override;
    void recordEnded(const xercesc::DOMElement& oElement, const void* pRecord, EnFate enFate) override;
    void sectionRead(std::size_t nRow, const void* pList) override;
    void capacityRead(const xercesc::XercesDOMParser& oDOMParser, const xercesc::DOMElement* pEntry,
                      const std::list<StAsnOperation>& lstCapacity) override;
    void recordCopied(const void* pFrom, const void* pTo) override;
    void recordPruned(const void* pRecord, const std::string& strId, const void* pCapacity) override;

private:
    struct StDocument
    {
        const CDocumentPlaces* pPlaces  = nullptr;
        std::uint32_t          ulFile   = 0;
        EnOrigin               enOrigin = EnOrigin::OwnFile;
    };
    // A record that has begun and not ended.
    struct StOpen
    {
        StSeen                        stSeen;
        const void*                   pRecord   = nullptr;
        const xercesc::DOMElement*    pElement  = nullptr;
        const StDocument*             pDocument = nullptr;
        StRange                       stTag;
        StSpot                        stTagSpot;
        std::u16string_view           strId; // of the document
        std::vector<StAttributePlace> lstWritten;
        std::vector<StSeenAttribute>  lstRead;
    };

    const StDocument& documentOf(const xercesc::DOMElement& oElement) const;
    static StPlace    placeIn(const StOpen& stOpen, const StRange& stRange);
    static StPlace    placeOf(const StOpen& stOpen, const StAttributeRead& stRead, std::u16string_view strName);
    void keep(const void* pRecord, StSeen stSeen, const StSeenAttribute* pAttribute, std::size_t nAttributes);
    void lose(const StSeen& stSeen, StEntry stEntry);

    const CReadRecorder*                                        m_pModules;
    std::unordered_map<const xercesc::DOMDocument*, StDocument> m_mapDocument;
    std::vector<StSeen>                                         m_lstSeen;
    std::vector<StSeenAttribute>                                m_lstAttribute;   // of all that were seen
    tsl::robin_map<const void*, std::size_t>                    m_mapNumber;      // of the records, in m_lstSeen
    std::unordered_map<const void*, std::vector<StLost>>        m_mapLost;        // by parent, or by list of a section
    std::vector<StOpen>                                         m_lstOpen;        // kept with their memory
    std::size_t                                                 m_nOpen = 0;      // of them
    std::size_t                                                 m_nRow  = NO_ROW; // of the section that is read
    StSeenAttribute                                             m_stTaskType;     // of the checks that are read
    std::unordered_map<std::uint32_t, StModuleHead>             m_mapModule;      // by file
    StModuleHead*                                               m_pModule = nullptr; // the one that is read
    std::vector<StCapacityDocument>                             m_lstCapacity;

    static constexpr std::size_t NO_ROW = static_cast<std::size_t>(-1);
};
} // namespace catalog

#endif
