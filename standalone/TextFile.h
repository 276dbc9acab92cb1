// Reads a whole file that anybody may have put there. Called when a root is
// opened. Throws CInventoryError, its text naming the file.
#ifndef OPERATIONXML_STANDALONE_TEXTFILE_H
#define OPERATIONXML_STANDALONE_TEXTFILE_H

#include <string>

namespace standalone
{
// The content of a regular file of at most 64 MB; a pipe or device in its place
// is refused without waiting for it.
std::string readTextFile(const std::string& strPath);
} // namespace standalone

#endif
