// The detail of one configuration: the tree of opxml show, every line with its place,
// as compact JSON. Stateless.
//
//   {"files": [the type's own, ...], "sections": [[row, node, ...], ...]}
//   node: [name, rest, lines down, column, children, more]
// Lines count from the node before it in the text; what is left out at the end of a
// node is empty. "more" is an object: f, another file from here on (lines count from 0
// then); m, its module where that of the entry around it is another; t, why it does not count ("shadowed", "dropped", "cut"); b,
// [file, line, column] of what made it so; r, the reason.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_DETAIL_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_DETAIL_H

#include "catalog/Catalog.h"

#include <cstddef>
#include <string>

std::string detailJson(const catalog::StTypeCatalog& stType, std::size_t nConfiguration);

#endif
