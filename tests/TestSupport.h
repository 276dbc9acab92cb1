// What the tests share: a parsed snippet, the log lines of the running test, a
// temporary server root. main() is here too: it starts every test with an empty log and
// no open server root.
#ifndef OPERATIONXML_TESTS_TESTSUPPORT_H
#define OPERATIONXML_TESTS_TESTSUPPORT_H

#include "common/XmlParser.h"
#include "standalone/FaultPoint.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A document parsed from a snippet. The snippet may hold several elements: it is
// wrapped in a root element of its own.
class CParsedXml
{
public:
    explicit CParsedXml(std::string_view strXml);

    xercesc::XercesDOMParser*  parser() { return m_pParser.get(); }
    const xercesc::DOMElement* root() { return m_pParser->getDocument()->getDocumentElement(); }

private:
    std::unique_ptr<CXmlParser> m_pParser;
};

// The lines written since the test began (or since clearLog): "E 3B0004EE text"
// for an error, "I text" for information, in the order written.
std::vector<std::string> logLines();

// The same with the place: "E 3B0004EE CDevOpXMLConfig::fillOperParaInfo text".
std::vector<std::string> logLinesWithPlace();

void clearLog();

// A server root of the test's own, gone when the test ends.
class CTempServerRoot
{
public:
    CTempServerRoot();
    ~CTempServerRoot();
    CTempServerRoot(const CTempServerRoot&)            = delete;
    CTempServerRoot& operator=(const CTempServerRoot&) = delete;

    // Writes a file below the root, making its folders; returns its whole path.
    std::string write(const std::string& strPath, std::string_view strContent);

    // Writes a file of the device-type configuration folder; returns its whole path.
    std::string writeConfig(const std::string& strName, std::string_view strContent);

    // Writes server.sql and opens the root; the test fails when it cannot be opened.
    void open(std::string_view strInventory = "");

    std::string path() const { return m_oPath.string(); }
    std::string configFolder() const;

private:
    std::filesystem::path m_oPath;
};

#endif
