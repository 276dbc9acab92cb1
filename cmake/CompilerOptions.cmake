# How our own code is compiled: every warning is an error, symbols are hidden
# unless marked, and the sanitizers apply to library, tool and tests alike.
add_library(operationXmlOptions INTERFACE)
target_compile_options(operationXmlOptions INTERFACE -Wall -Wextra -Wpedantic -Wconversion
                       $<$<BOOL:${OPERATIONXML_WARNINGS_AS_ERRORS}>:-Werror>)
if(OPERATIONXML_SANITIZE)
    add_compile_options(-fsanitize=${OPERATIONXML_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${OPERATIONXML_SANITIZE})
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# A second build of the same sources takes seconds.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()
