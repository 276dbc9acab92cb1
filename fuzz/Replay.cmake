# Replays the committed corpora with the build's own compiler and sanitizers.
include(${CMAKE_CURRENT_LIST_DIR}/Targets.cmake)
foreach(target IN LISTS FUZZ_TARGETS)
    add_executable(replay${target} ${CMAKE_CURRENT_LIST_DIR}/${target}Target.cpp
                                   ${CMAKE_CURRENT_LIST_DIR}/FuzzSupport.cpp ${CMAKE_CURRENT_LIST_DIR}/FuzzReplay.cpp)
    target_link_libraries(replay${target} PRIVATE opxmlCommands operationXmlOptions)
    add_test(NAME Replay.${target} COMMAND replay${target} ${CMAKE_CURRENT_LIST_DIR}/corpus/${target})
    set_tests_properties(Replay.${target} PROPERTIES TIMEOUT 300)
endforeach()
