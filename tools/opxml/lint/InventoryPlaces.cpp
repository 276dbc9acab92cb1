// See InventoryPlaces.h.
#include "tools/opxml/lint/InventoryPlaces.h"

#include <algorithm>
#include <cctype>

namespace
{
bool isWordByte(char cByte)
{
    return std::isalnum(static_cast<unsigned char>(cByte)) != 0 || cByte == '_' || cByte == '.' || cByte == '$' ||
           (static_cast<unsigned char>(cByte) & 0x80u) != 0;
}

bool isQuote(char cByte)
{
    return cByte == '\'' || cByte == '"' || cByte == '`';
}

std::string lowered(std::string_view strText)
{
    std::string strLow(strText);
    std::transform(strLow.begin(), strLow.end(), strLow.begin(),
                   [](unsigned char cByte) { return static_cast<char>(std::tolower(cByte)); });
    return strLow;
}

// A quoted text without its quotes, doubled ones made single.
std::string unquoted(std::string_view strToken)
{
    if (strToken.size() < 2 || !isQuote(strToken.front()))
        return std::string(strToken);
    std::string strText;
    for (std::size_t nAt = 1; nAt + 1 < strToken.size(); ++nAt)
    {
        strText += strToken[nAt];
        if (strToken[nAt] == strToken.front())
            ++nAt;
    }
    return strText;
}

// Behind blanks and comments.
std::size_t behindBlanks(std::string_view strSql, std::size_t nAt)
{
    while ((nAt = strSql.find_first_not_of(" \t\n\v\f\r", nAt)) < strSql.size())
    {
        if (strSql.compare(nAt, 2, "--") == 0)
            nAt = strSql.find('\n', nAt);
        else if (strSql.compare(nAt, 2, "/*") == 0)
            nAt = std::min(strSql.find("*/", nAt + 2), strSql.size() - 2) + 2;
        else
            return nAt;
    }
    return strSql.size();
}

std::size_t tokenLength(std::string_view strSql)
{
    if (strSql.empty())
        return 0;
    std::size_t nEnd = 1;
    if (isQuote(strSql.front()))
    {
        while ((nEnd = strSql.find(strSql.front(), nEnd)) < strSql.size())
        {
            if (strSql.compare(nEnd + 1, 1, strSql.substr(0, 1)) != 0)
                return nEnd + 1;
            nEnd += 2;
        }
        return strSql.size();
    }
    while (isWordByte(strSql.front()) && nEnd < strSql.size() && isWordByte(strSql[nEnd]))
        ++nEnd;
    return nEnd;
}

bool isNumber(std::string_view strToken)
{
    return !strToken.empty() && strToken.find_first_not_of("0123456789") == std::string_view::npos;
}
} // namespace

CInventoryPlaces::CInventoryPlaces(std::string                                            strScript,
                                   const std::map<std::string, std::vector<std::string>>& mapColumn)
    : m_oText(std::move(strScript)), m_mapColumn(mapColumn)
{
    while (!peek().empty())
        readStatement();
}

std::string_view CInventoryPlaces::peek()
{
    const std::string_view strSql = m_oText.bytes();
    m_nAt                         = behindBlanks(strSql, m_nAt);
    return strSql.substr(m_nAt, tokenLength(strSql.substr(m_nAt)));
}

std::string CInventoryPlaces::take()
{
    const std::string_view strToken = peek();
    m_nAt += strToken.size();
    return std::string(strToken);
}

void CInventoryPlaces::skipStatement()
{
    while (!peek().empty() && take() != ";")
        continue;
}

// INSERT [OR …] INTO table [(columns)] VALUES (…), (…); anything else is passed over.
void CInventoryPlaces::readStatement()
{
    if (lowered(peek()) != "insert")
        return skipStatement();
    for (int nWords = 0; nWords < 4 && lowered(peek()) != "into"; ++nWords)
        take();
    take();
    std::string strTable = lowered(unquoted(take()));
    strTable             = strTable.substr(strTable.rfind('.') + 1);
    const auto itTable   = m_mapColumn.find(strTable);
    if (itTable == m_mapColumn.end())
        return skipStatement();
    std::vector<std::string> lstColumn = itTable->second;
    if (peek() == "(")
    {
        lstColumn.clear();
        while (!peek().empty() && peek() != ")")
        {
            take(); // "(" or ","
            lstColumn.push_back(lowered(unquoted(take())));
        }
        take();
    }
    if (lowered(peek()) == "values")
        readTuples(strTable, lstColumn);
    skipStatement();
}

void CInventoryPlaces::readTuples(const std::string& strTable, const std::vector<std::string>& lstColumn)
{
    do
    {
        take(); // VALUES or ","
        if (peek() != "(")
            return;
        StTuple stTuple;
        stTuple.nBegin = m_nAt;
        for (const std::string& strColumn : lstColumn)
        {
            if (peek() == ")")
                break;
            take(); // "(" or ","
            peek();
            stTuple.mapLiteral[strColumn] = readValue();
        }
        m_mapTuple[strTable].push_back(std::move(stTuple));
        if (take() != ")")
            return;
    } while (peek() == ",");
}

// To the next comma, or the end of the tuple.
CInventoryPlaces::StLiteral CInventoryPlaces::readValue()
{
    StLiteral         stLiteral;
    const std::size_t nFirst  = m_nAt;
    std::size_t       nDepth  = 0;
    std::size_t       nTokens = 0;
    std::string       strSign;
    std::string       strToken;
    while (!peek().empty() && (nDepth > 0 || (peek() != "," && peek() != ")")))
    {
        strToken = take();
        if (nTokens == 0 && strToken == "-")
        {
            strSign = "-";
            continue;
        }
        nDepth += strToken == "(" ? 1 : 0;
        nDepth -= strToken == ")" && nDepth > 0 ? 1 : 0;
        ++nTokens;
        stLiteral.nEnd = m_nAt;
    }
    const bool bText = nTokens == 1 && strToken.size() >= 2 && strToken.front() == '\'';
    stLiteral.bKnown = bText || (nTokens == 1 && isNumber(strToken));
    stLiteral.nBegin = bText ? nFirst + 1 : nFirst;
    stLiteral.nEnd -= bText ? 1 : 0;
    stLiteral.strValue = bText ? unquoted(strToken) : strSign + strToken;
    return stLiteral;
}

bool CInventoryPlaces::isRow(const StTuple& stTuple, const standalone::InventoryRow& stRow)
{
    return std::all_of(stTuple.mapLiteral.begin(), stTuple.mapLiteral.end(),
                       [&stRow](const auto& oLiteral)
                       {
                           const auto itValue = stRow.find(oLiteral.first);
                           return !oLiteral.second.bKnown ||
                                  (itValue != stRow.end() && itValue->second == oLiteral.second.strValue);
                       });
}

catalog::StSpot CInventoryPlaces::spot(const std::string& strTable, const standalone::InventoryRow& stRow,
                                       const std::string& strColumn) const
{
    const auto itTable = m_mapTuple.find(strTable);
    if (itTable == m_mapTuple.end())
        return {};
    const std::vector<StTuple>& lstTuple = itTable->second;
    const auto                  fnIsRow  = [&stRow](const StTuple& stTuple) { return isRow(stTuple, stRow); };
    std::size_t&                nLast    = m_mapLast[strTable];
    auto itTuple = std::find_if(lstTuple.begin() + static_cast<std::ptrdiff_t>(nLast), lstTuple.end(), fnIsRow);
    if (itTuple == lstTuple.end())
        itTuple = std::find_if(lstTuple.begin(), lstTuple.end(), fnIsRow);
    if (itTuple == lstTuple.end())
        return {};
    nLast                = static_cast<std::size_t>(itTuple - lstTuple.begin());
    const auto itLiteral = itTuple->mapLiteral.find(strColumn);
    if (itLiteral == itTuple->mapLiteral.end())
        return m_oText.spot(itTuple->nBegin, 1);
    return m_oText.spot(itLiteral->second.nBegin, itLiteral->second.nEnd - itLiteral->second.nBegin);
}
