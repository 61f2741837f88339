# Helpers shared by the folders' CMakeLists.

# orvanne_core(NAME [PLAIN] SOURCES... [LINKS targets...])
# A core library: pixel logic, formats and rules. It may link Qt6::Core and Qt6::Gui, never
# widgets; a PLAIN core links no Qt at all.
function(orvanne_core name)
    cmake_parse_arguments(ARG "PLAIN" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    if(ARG_PLAIN)
        set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    else()
        target_link_libraries(${name} PUBLIC Qt6::Core Qt6::Gui)
    endif()
    target_link_libraries(${name} PUBLIC ${ARG_LINKS})
    foreach(lib IN LISTS ARG_LINKS)
        if(lib MATCHES "Widgets" OR (ARG_PLAIN AND lib MATCHES "^Qt"))
            message(FATAL_ERROR "${name} is a core and may not link ${lib}")
        endif()
    endforeach()
endfunction()

# orvanne_ui(NAME SOURCES... [LINKS targets...]): a library of windows.
function(orvanne_ui name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets ${ARG_LINKS})
endfunction()

# orvanne_test(NAME SOURCES... [LINKS targets...] [GUI])
# A GoogleTest program registered with CTest. GUI tests get the offscreen platform and
# a private home, so that no test reads or writes the developer's own settings.
function(orvanne_test name)
    cmake_parse_arguments(ARG "GUI" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE GTest::gtest ${ARG_LINKS})
    if(ARG_GUI)
        target_link_libraries(${name} PRIVATE orvanne_testsupport_gui)
    else()
        target_link_libraries(${name} PRIVATE GTest::gtest_main)
    endif()
    target_compile_definitions(${name} PRIVATE
        ORVANNE_TESTDATA="${ORVANNE_TESTDATA}"
        ORVANNE_SCREENSHOTS="${ORVANNE_SCREENSHOTS}")
    gtest_discover_tests(${name}
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
        DISCOVERY_TIMEOUT 60)
endfunction()
