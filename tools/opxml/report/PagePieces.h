// The page without its data, from page/, joined at build time by EmbedPage.cmake.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_PAGEPIECES_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_PAGEPIECES_H

// Markup up to the place of the data, with style and content security policy in it.
// @TITLE@ stands for the title.
extern const char* const PAGE_HEAD;

// What follows the data: the script, and the end of the markup.
extern const char* const PAGE_TAIL;

#endif
