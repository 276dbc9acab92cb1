# What cmake --install puts down: libraries, public headers, the tool, the schemas,
# the CMake package and the pkg-config files. All paths in them are relative, so that the
# installed tree may be moved or packed. A server build installs no stand-alone
# library and no tool.
include(CMakePackageConfigHelpers)

set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/operationXml)
set(PKGCONFIG_FOLDER ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(HEADER_FOLDER ${CMAKE_INSTALL_INCLUDEDIR}/operationXml)

install(TARGETS operationXml EXPORT operationXmlTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

# A folder's headers are public but for those that only its own sources share.
foreach(FOLDER platform records sections reader database alarm filecheck)
    install(DIRECTORY ${FOLDER} DESTINATION ${HEADER_FOLDER} FILES_MATCHING PATTERN "*.h"
            PATTERN "ItemRead.h" EXCLUDE
            PATTERN "SectionRead.h" EXCLUDE
            PATTERN "TaskRead.h" EXCLUDE
            PATTERN "SectionChain.h" EXCLUDE
            PATTERN "ModuleAppend.h" EXCLUDE
            PATTERN "ConfigSearch.h" EXCLUDE
            PATTERN "SectionTable.h" EXCLUDE
            PATTERN "ContentQuestions.h" EXCLUDE
            PATTERN "LoadDocuments.h" EXCLUDE
            PATTERN "LoadPlan.h" EXCLUDE
            PATTERN "LoadThreads.h" EXCLUDE
            PATTERN "ParseAhead.h" EXCLUDE
            PATTERN "ParserPool.h" EXCLUDE
            PATTERN "QueryGuard.h" EXCLUDE)
endforeach()
install(FILES common/XmlParser.h common/ParserMemory.h common/XmlNesting.h common/ReadProblem.h DESTINATION ${HEADER_FOLDER}/common)

install(TARGETS operationXmlLint EXPORT operationXmlTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES lint/Lint.h DESTINATION ${HEADER_FOLDER}/lint)

# For the editors of those who write the files: docs/editors.md.
install(DIRECTORY schema DESTINATION ${CMAKE_INSTALL_DATADIR}/operationXml)

# Finds the other folder from where a file lies, whatever the prefix is called.
file(RELATIVE_PATH BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_PREFIX}/${PKGCONFIG_FOLDER} ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" PKGCONFIG_TO_PREFIX "${PKGCONFIG_TO_PREFIX}")

set(PACKAGE_FILES operationXml)
if(TARGET operationXmlStandalone)
    install(TARGETS operationXmlStandalone EXPORT operationXmlTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(FILES standalone/ServerRoot.h standalone/LogSink.h standalone/EventSink.h standalone/FaultPoint.h
            DESTINATION ${HEADER_FOLDER}/standalone)
    list(APPEND PACKAGE_FILES operationXmlStandalone)
endif()
if(TARGET opxml)
    set_target_properties(opxml PROPERTIES INSTALL_RPATH "$ORIGIN/${BIN_TO_LIB}")
    install(TARGETS opxml RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    set(SHELLS tools/opxml/completion/shells)
    install(FILES ${SHELLS}/opxml.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME opxml)
    install(FILES ${SHELLS}/_opxml DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
    install(FILES ${SHELLS}/opxml.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()

foreach(NAME ${PACKAGE_FILES})
    configure_file(cmake/${NAME}.pc.in ${PROJECT_BINARY_DIR}/${NAME}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${NAME}.pc DESTINATION ${PKGCONFIG_FOLDER})
endforeach()

install(EXPORT operationXmlTargets NAMESPACE operationXml:: DESTINATION ${PACKAGE_FOLDER})
configure_package_config_file(cmake/operationXmlConfig.cmake.in ${PROJECT_BINARY_DIR}/operationXmlConfig.cmake
                              INSTALL_DESTINATION ${PACKAGE_FOLDER})
# Before 1.0 every minor version may change what is exported.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/operationXmlConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/operationXmlConfig.cmake ${PROJECT_BINARY_DIR}/operationXmlConfigVersion.cmake
              cmake/FindACE.cmake DESTINATION ${PACKAGE_FOLDER})
