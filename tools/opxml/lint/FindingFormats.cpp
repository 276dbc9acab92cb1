// Findings for programs: JSON, SARIF 2.1.0, GitHub annotations. Lists are written
// item by item, so that they stream.
#include "tools/opxml/lint/FindingPrinter.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Terminal.h"

#include <fmt/format.h>

namespace
{
// A JSON list whose items come one by one, inside a text that begins and ends it.
class CListPrinter : public CFindingPrinter
{
public:
    void print(const StPrintedFinding& stPrinted) final
    {
        ::print((m_bFirst ? "\n" : ",\n") + jsonText(item(stPrinted)));
        m_bFirst = false;
    }

protected:
    virtual Json item(const StPrintedFinding& stPrinted) = 0;

private:
    bool m_bFirst = true;
};

class CJsonPrinter : public CListPrinter
{
public:
    void begin() override { ::print("{\"findings\": ["); }
    void end() override { ::print("\n]}\n"); }

protected:
    Json item(const StPrintedFinding& stPrinted) override
    {
        const lint::StFinding& stFinding = stPrinted.stFinding;
        Json                   oItem     = {{"file", stFinding.strFile},
                                            {"line", stFinding.ulLine},
                                            {"column", stFinding.ulColumn},
                                            {"length", stFinding.ulLength},
                                            {"severity", severityName(stFinding.enSeverity)},
                                            {"rule", stFinding.strRule},
                                            {"message", stFinding.strMessage}};
        oItem["help"]                    = stFinding.lstHelp;
        oItem["subject"]                 = stFinding.strSubject;
        oItem["fingerprint"]             = stPrinted.strFingerprint;
        return oItem;
    }
};

class CSarifPrinter : public CListPrinter
{
public:
    explicit CSarifPrinter(std::string strToolVersion) : m_strToolVersion(std::move(strToolVersion)) {}

    void begin() override
    {
        Json oRules = Json::array();
        for (const lint::StRule& stRule : lint::rules())
            oRules.push_back({{"id", stRule.pszId},
                              {"shortDescription", {{"text", stRule.pszTitle}}},
                              {"fullDescription", {{"text", stRule.pszWhy}}},
                              {"defaultConfiguration", {{"level", severityName(stRule.enSeverity)}}},
                              {"properties", {{"tags", Json::array({stRule.pszGroup})}}}});
        const Json oTool = {{"driver", {{"name", "opxml lint"}, {"version", m_strToolVersion}, {"rules", oRules}}}};
        ::print("{\"$schema\": \"https://json.schemastore.org/sarif-2.1.0.json\", \"version\": \"2.1.0\",\n"
                "\"runs\": [{\"tool\": " +
                jsonText(oTool) + ",\n\"columnKind\": \"unicodeCodePoints\", \"results\": [");
    }
    void end() override { ::print("\n]}]}\n"); }

protected:
    Json item(const StPrintedFinding& stPrinted) override
    {
        const lint::StFinding& stFinding = stPrinted.stFinding;
        std::string            strText   = stFinding.strMessage;
        for (const std::string& strHelp : stFinding.lstHelp)
            strText += "\n" + strHelp;
        Json oLocation = {{"artifactLocation", {{"uri", uriText(stFinding.strFile)}}}};
        if (stFinding.ulLine != 0)
            oLocation["region"] = {{"startLine", stFinding.ulLine},
                                   {"startColumn", std::max(stFinding.ulColumn, 1u)},
                                   {"endColumn", std::max(stFinding.ulColumn, 1u) + stFinding.ulLength}};
        return {{"ruleId", stFinding.strRule},
                {"level", severityName(stFinding.enSeverity)},
                {"message", {{"text", strText}}},
                {"locations", Json::array({{{"physicalLocation", oLocation}}})},
                {"partialFingerprints", {{"opxmlLint/v1", stPrinted.strFingerprint}}}};
    }

private:
    // A path as a relative reference: what a URI may not hold is written in percent.
    static std::string uriText(const std::string& strPath)
    {
        std::string strUri;
        for (const char cByte : strPath)
        {
            const bool bPlain = (cByte >= '0' && cByte <= '9') || (cByte >= 'A' && cByte <= 'Z') ||
                                (cByte >= 'a' && cByte <= 'z') ||
                                std::string_view("/-._~").find(cByte) != std::string_view::npos;
            strUri += bPlain ? std::string(1, cByte) : fmt::format("%{:02X}", static_cast<unsigned char>(cByte));
        }
        return strUri;
    }

    std::string m_strToolVersion;
};

class CGithubPrinter : public CFindingPrinter
{
public:
    void print(const StPrintedFinding& stPrinted) override
    {
        const lint::StFinding& stFinding = stPrinted.stFinding;
        std::string            strText   = stFinding.strMessage;
        for (const std::string& strHelp : stFinding.lstHelp)
            strText += "\n" + strHelp;
        std::string strPlace = "file=" + escaped(stFinding.strFile, true);
        if (stFinding.ulLine != 0)
            strPlace += fmt::format(",line={},col={},endColumn={}", stFinding.ulLine, std::max(stFinding.ulColumn, 1u),
                                    std::max(stFinding.ulColumn, 1u) + stFinding.ulLength);
        const char* pszKind =
            stFinding.enSeverity == lint::EnSeverity::Note ? "notice" : severityName(stFinding.enSeverity);
        ::print(fmt::format("::{} {},title={}::{}\n", pszKind, strPlace, stFinding.strRule, escaped(strText, false)));
    }

private:
    static std::string escaped(const std::string& strText, bool bProperty)
    {
        std::string strOut;
        for (const char cByte : strText)
        {
            const bool bEscape =
                cByte == '%' || cByte == '\r' || cByte == '\n' || (bProperty && (cByte == ':' || cByte == ','));
            strOut += bEscape ? fmt::format("%{:02X}", static_cast<unsigned char>(cByte)) : std::string(1, cByte);
        }
        return strOut;
    }
};
} // namespace

std::unique_ptr<CFindingPrinter> makeJsonPrinter()
{
    return std::make_unique<CJsonPrinter>();
}

std::unique_ptr<CFindingPrinter> makeSarifPrinter(const std::string& strToolVersion)
{
    return std::make_unique<CSarifPrinter>(strToolVersion);
}

std::unique_ptr<CFindingPrinter> makeGithubPrinter()
{
    return std::make_unique<CGithubPrinter>();
}
