# Joins the page: markup, style and script, as C++ for opxml report.
#   cmake -DFOLDER=… -DOUTPUT=… -P EmbedPage.cmake
# The scripts are modules for their readers and for eslint; the page has them as one
# script, in the order in which they import each other, without imports and exports.
# The policy names style and script by their hashes, so nothing else runs.
cmake_minimum_required(VERSION 3.25)
set(SCRIPTS words data view choose dom cells grid filters paper matrix tree detail health comparison main)
set(STYLES base matrix sign detail text narrow)

# The SHA-256 of a text in base64, as a policy wants it; CMake knows hexadecimal.
function(hash_base64 TEXT RESULT)
    set(DIGITS "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
    string(SHA256 HEX "${TEXT}")
    string(APPEND HEX "00") # 32 bytes and one more are 11 times three
    set(BASE64 "")
    foreach(AT RANGE 0 60 6)
        string(SUBSTRING ${HEX} ${AT} 6 THREE)
        math(EXPR BITS "0x${THREE}")
        foreach(SHIFT 18 12 6 0)
            math(EXPR DIGIT "(${BITS} >> ${SHIFT}) & 63")
            string(SUBSTRING ${DIGITS} ${DIGIT} 1 DIGIT)
            string(APPEND BASE64 ${DIGIT})
        endforeach()
    endforeach()
    string(REGEX REPLACE ".$" "=" BASE64 ${BASE64})
    set(${RESULT} ${BASE64} PARENT_SCOPE)
endfunction()

# In a block of a strict script a name that two files declare is an error, not a surprise.
set(SCRIPT "\"use strict\";\n{\n")
foreach(NAME ${SCRIPTS})
    file(READ ${FOLDER}/${NAME}.js TEXT)
    string(REGEX REPLACE "(^|\n)import [^;]*;\n" "\\1" TEXT "${TEXT}")
    string(REGEX REPLACE "(^|\n)export " "\\1" TEXT "${TEXT}")
    string(APPEND SCRIPT "${TEXT}")
endforeach()
string(APPEND SCRIPT "}\n")
set(STYLE "")
foreach(NAME ${STYLES})
    file(READ ${FOLDER}/${NAME}.css TEXT)
    string(APPEND STYLE "${TEXT}")
endforeach()
file(READ ${FOLDER}/page.html HTML)

hash_base64("${SCRIPT}" SCRIPT_HASH)
hash_base64("${STYLE}" STYLE_HASH)
string(REPLACE "@SCRIPT_HASH@" "${SCRIPT_HASH}" HTML "${HTML}")
string(REPLACE "@STYLE_HASH@" "${STYLE_HASH}" HTML "${HTML}")
string(REPLACE "@STYLE@" "${STYLE}" HTML "${HTML}")
string(FIND "${HTML}" "@DATA@" AT)
string(SUBSTRING "${HTML}" 0 ${AT} HEAD)
math(EXPR AFTER "${AT} + 6")
string(SUBSTRING "${HTML}" ${AFTER} -1 TAIL)
string(REPLACE "@SCRIPT@" "${SCRIPT}" TAIL "${TAIL}")
file(WRITE ${OUTPUT} "// Made from tools/opxml/report/page.
#include \"tools/opxml/report/PagePieces.h\"

const char* const PAGE_HEAD = R\"page(${HEAD})page\";
const char* const PAGE_TAIL = R\"page(${TAIL})page\";
")
