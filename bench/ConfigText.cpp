// One function a section, in the order of the format. Lists shrink with the
// wished size; what is missing to it is filled by checks, the longest section of
// real files, or by other operations.
#include "ConfigText.h"

#include "Words.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace
{
constexpr std::size_t FULL_BYTES = 96000; // from this size on, every list is whole

class CConfigText
{
public:
    explicit CConfigText(const StConfigWish& stWish)
        : m_stWish(stWish), m_oDice((stWish.ulSeed << 32) + stWish.nType),
          m_strSeries(Words::SERIES[stWish.nType % std::size(Words::SERIES)])
    {
    }

    std::string text();

private:
    // The first entries of a table, fewer for a small file, never none.
    template <typename Table, typename Visit>
    void some(const Table& arTable, Visit fnVisit)
    {
        const std::size_t nWanted = std::size(arTable) * std::min(m_stWish.nBytes, FULL_BYTES) / FULL_BYTES;
        std::for_each_n(std::begin(arTable), std::max<std::size_t>(nWanted, 1), fnVisit);
    }

    std::string board(std::string_view strKind) const { return m_strSeries + "-" + std::string(strKind); }

    void parameter(std::string_view strId, std::string_view strSelected, const std::function<void()>& fnContent);
    void boards();
    template <typename Table>
    void options(const Table& arTable, bool bTargets = true);
    template <typename Table>
    void section(std::string_view strName, const Table& arOperations);
    void operationParameters(std::string_view strOperId);
    void patchStates();
    void customs();
    void other(std::string_view strId);
    void upgrades();
    void menus();
    void tasks();
    void taskSteps();
    void fill();

    StConfigWish m_stWish;
    CDice        m_oDice;
    std::string  m_strSeries;
    CXmlText     m_oXml;
};

void CConfigText::parameter(std::string_view strId, std::string_view strSelected,
                            const std::function<void()>& fnContent)
{
    m_oXml.open("Parameter", {{"id", strId}, {"isRequired", m_oDice.oneIn(3) ? "0" : "1"}, {"selected", strSelected}});
    fnContent();
    m_oXml.close();
}

template <typename Table>
void CConfigText::options(const Table& arTable, bool bTargets)
{
    some(arTable,
         [&](const Words::StNumbered& stOption)
         {
             m_oXml.leaf("Option", {{"id", stOption.strId},
                                    {"value", stOption.strValue},
                                    {"target", bTargets ? stOption.strTarget : ""}});
         });
}

void CConfigText::boards()
{
    std::size_t nValue = m_oDice.below(5);
    some(Words::BOARDS,
         [&](std::string_view strKind) {
             m_oXml.leaf("Option", {{"id", board(strKind)}, {"value", std::to_string(++nValue)}});
         });
}

template <typename Table>
void CConfigText::section(std::string_view strName, const Table& arOperations)
{
    m_oXml.open(strName);
    some(arOperations,
         [&](std::string_view strId)
         {
             const std::string_view strLevel      = m_oDice.pick(Words::LEVELS);
             const std::string_view strCancelable = m_oDice.oneIn(2) ? "1" : "0";
             const bool             bPatch        = strName == "PatchOperation"; // never cancelable
             m_oXml.open("Operation",
                         {{"id", strId}, {"operationLevel", strLevel}, {"isCancelable", bPatch ? "" : strCancelable}});
             operationParameters(strId);
             m_oXml.close();
         });
    m_oXml.close();
}

void CConfigText::operationParameters(std::string_view strOperId)
{
    if (strOperId == "Backup" || strOperId == "LoadData")
        parameter("ContentType", "CONFIG", [&] { options(Words::CONTENTS); });
    if (strOperId == "ActivateSoftware")
        parameter("BoardType", "", [&] { boards(); });
    if (m_oDice.oneIn(2))
        parameter("TransferProtocol", "SFTP", [&] { options(Words::PROTOCOLS); });
    if (m_oDice.oneIn(3))
        parameter("ActivateMode", "Restart", [&] { options(Words::MODES); });
}

void CConfigText::patchStates()
{
    m_oXml.open("PatchStateConfiguration");
    for (const std::string_view strType : {"HotPatch", "ColdPatch"})
    {
        m_oXml.open("Patch", {{"type", strType}});
        some(Words::PATCH_STATES,
             [&](std::string_view strState)
             {
                 m_oXml.open("State", {{"name", strState}});
                 m_oXml.leaf("Item", {{"type", "PatchOperation"}, {"id", m_oDice.pick(Words::PATCH_OPERATIONS)}});
                 m_oXml.leaf("Item", {{"type", "CheckOperation"}, {"id", m_oDice.pick(Words::CHECK_OPERATIONS)}});
                 m_oXml.close();
             });
        m_oXml.close();
    }
    m_oXml.close();
}

void CConfigText::customs()
{
    m_oXml.open("CustomOperations");
    some(Words::CUSTOM_OPERATIONS,
         [&](std::string_view strId)
         {
             m_oXml.open("Operation", {{"id", strId},
                                       {"shortcutkey", "Ctrl+F" + std::to_string(1 + m_oDice.below(12))},
                                       {"AvailableIn", m_oDice.pick(Words::CUSTOM_PLACES)},
                                       {"operationLevel", m_oDice.pick(Words::LEVELS)}});
             m_oXml.leaf("ResouceClass", {{"filename", m_strSeries + "/" + std::string(strId) + ".class"}});
             m_oXml.close();
         });
    m_oXml.close();
}

void CConfigText::other(std::string_view strId)
{
    m_oXml.open("OtherOperation", {{"id", strId}, {"isSupported", m_oDice.oneIn(4) ? "0" : "1"}});
    if (strId == "SAM" || m_oDice.oneIn(2))
        parameter("ContentType", "", [&] { options(Words::CONTENTS, false); }); // no targets here
    parameter("Window", "", [&] { options(Words::MODES); });
    m_oXml.close();
}

void CConfigText::upgrades()
{
    m_oXml.open("UpgradeOperation");
    for (const std::string_view strId : {"PrepareUpgrade", "LoadSoftware", "ActivateSoftware", "PostUpgrade"})
    {
        m_oXml.open("Operation", {{"id", strId}, {"operationLevel", m_oDice.pick(Words::LEVELS)}});
        for (std::size_t nLeft = 1 + m_oDice.below(3); nLeft > 0; --nLeft)
        {
            m_oXml.open("SubOperation", {{"id", m_oDice.pick(Words::TASK_OPERATIONS)},
                                         {"operationLevel", m_oDice.pick(Words::LEVELS)},
                                         {"operDescription", describe(m_oDice)}});
            if (m_oDice.oneIn(2))
                parameter("BoardType", "", [&] { boards(); });
            else
                parameter("TransferProtocol", "", [&] { options(Words::PROTOCOLS); });
            m_oXml.close();
        }
        m_oXml.close();
    }
    m_oXml.close();
}

void CConfigText::menus()
{
    m_oXml.open("DeviceViewPopupMenu");
    some(Words::DEVICE_OPERATIONS,
         [&](std::string_view strId) {
             m_oXml.leaf("Item", {{"type", "DeviceOperation"}, {"id", strId}});
         });
    m_oXml.leaf("Item", {{"type", "OtherOperation"}, {"id", "GetWeakBd"}});
    m_oXml.leaf("Item", {{"type", "BoardOperation"}, {"id", "FanSlowTiming"}});
    m_oXml.close();
    m_oXml.open("DeviceViewTab");
    some(Words::CUSTOM_OPERATIONS,
         [&](std::string_view strId) {
             m_oXml.leaf("Item", {{"type", "CustomOperation"}, {"id", strId}});
         });
    m_oXml.close();
    m_oXml.open("PatchViewPopupMenu");
    for (const std::string_view strType : {"HotPatch", "ColdPatch"})
    {
        m_oXml.open("Patch", {{"type", strType}});
        some(Words::PATCH_OPERATIONS,
             [&](std::string_view strId) {
                 m_oXml.leaf("Item", {{"type", "PatchOperation"}, {"id", strId}});
             });
        m_oXml.close();
    }
    m_oXml.close();
}

void CConfigText::taskSteps()
{
    std::string_view strBefore;
    some(Words::TASK_OPERATIONS,
         [&](std::string_view strId)
         {
             if (m_oDice.oneIn(2))
                 return;
             m_oXml.leaf("TaskConfigOper", {{"type", "TaskOperation"},
                                            {"id", strId},
                                            {"dependsOn", strBefore},
                                            {"operDescription", describe(m_oDice)},
                                            {"isSelect", "true"},
                                            {"isPauseBeforeOP", m_oDice.oneIn(4) ? "true" : "false"}});
             strBefore = strId;
         });
}

void CConfigText::tasks()
{
    m_oXml.open("TaskConfiguration");
    some(Words::TASK_TYPES,
         [&](std::string_view strId)
         {
             m_oXml.open("TaskType", {{"id", strId}, {"GUITemplete", "upgrade_wizard.xml"}});
             if (strId == "PatchUpdate")
             {
                 m_oXml.open("Parameter", {{"id", "PatchType"}, {"value", "HotPatch"}, {"isRequired", "1"}});
                 options(Words::MODES);
                 taskSteps();
                 m_oXml.close();
             }
             else
             {
                 m_oXml.open("Operation");
                 taskSteps();
                 m_oXml.close();
                 m_oXml.open("TaskFeatureConfiguration");
                 some(Words::FEATURES,
                      [&](std::string_view strFeature) {
                          m_oXml.leaf("Configuration", {{"id", strFeature}, {"isSupported", "1"}});
                      });
                 m_oXml.close();
             }
             m_oXml.close();
         });
    m_oXml.close();
}

void CConfigText::fill()
{
    constexpr std::size_t END_BYTES = 23; // "</ServerConfiguration>" and its line end
    const std::size_t     nBytes    = std::max(m_stWish.nBytes, END_BYTES) - END_BYTES;
    if (m_stWish.bCheck)
        return addChecks(m_oXml, m_oDice, m_strSeries, nBytes);
    for (std::size_t nEntry = 1; m_oXml.size() < nBytes; ++nEntry)
        other("Extension" + std::to_string(nEntry));
}

std::string CConfigText::text()
{
    m_oXml = CXmlText("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    m_oXml.open("ServerConfiguration");
    section("DeviceOperation", Words::DEVICE_OPERATIONS);
    section("TaskOperation", Words::TASK_OPERATIONS);
    section("PatchOperation", Words::PATCH_OPERATIONS);
    patchStates();
    customs();
    some(Words::OTHER_OPERATIONS, [&](std::string_view strId) { other(strId); });
    upgrades();
    menus();
    tasks();
    fill(); // last: sections may stand in any order
    m_oXml.close();
    return m_oXml.str();
}
} // namespace

std::string deviceTypeName(std::size_t nType)
{
    return std::string(Words::SERIES[nType % std::size(Words::SERIES)])
        .append(" ")
        .append(std::to_string(1000 + nType))
        .append(Words::SUFFIXES[nType % std::size(Words::SUFFIXES)]);
}

std::string describe(CDice& oDice)
{
    if (oDice.oneIn(8))
        return std::string(oDice.pick(Words::FOREIGN));
    return std::string(oDice.pick(Words::OBJECTS)).append(": ").append(oDice.pick(Words::STATES));
}

std::string configText(const StConfigWish& stWish)
{
    return CConfigText(stWish).text();
}
