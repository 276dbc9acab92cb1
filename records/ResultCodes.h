// The library's own result codes. Every operation answers an unsigned 32-bit
// code; codes of platform calls are passed up unchanged beside these.
#ifndef OPERATIONXML_RECORDS_RESULTCODES_H
#define OPERATIONXML_RECORDS_RESULTCODES_H

#include <cstdint>

constexpr std::uint32_t DC_RESULT_OK             = 0;
constexpr std::uint32_t DC_RESULT_PARSER_NULL    = 0x3B0004E8; // no DOM parser where a parse should start
constexpr std::uint32_t DC_RESULT_INVALID_PARA   = 0x3B0004EC; // invalid argument; no record for a device type
constexpr std::uint32_t DC_RESULT_XML_ERROR      = 0x3B0004EE; // no document, element list or element
constexpr std::uint32_t DC_RESULT_FILE_NOT_EXIST = 0x3B000D21; // a configuration or check file is not there

#endif
