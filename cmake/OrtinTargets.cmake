# What every target of the project has in common.

add_library(ortin_warnings INTERFACE)
target_compile_options(ortin_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual -Wimplicit-fallthrough -Werror)

add_library(ortin_platform_options INTERFACE)
if(WIN32)
    target_compile_definitions(ortin_platform_options INTERFACE
        UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT WINVER=0x0A00 _WIN32_WINNT=0x0A00 _WIN32_IE=0x0A00)
    target_compile_options(ortin_platform_options INTERFACE -finput-charset=UTF-8)
endif()

# ortin_shared_library(NAME EXPORT_MACRO): a DLL whose sources define EXPORT_MACRO to export their classes.
function(ortin_shared_library name export_definition)
    add_library(${name} SHARED)
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
    target_compile_definitions(${name} PRIVATE ${export_definition})
    target_link_libraries(${name} PRIVATE ortin_warnings PUBLIC ortin_platform_options)
endfunction()

# GoogleTest from Debian's sources, built for the target of this build.
function(ortin_need_googletest)
    if(NOT TARGET gtest)
        set(INSTALL_GTEST OFF)
        set(BUILD_GMOCK ON)
        add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    endif()
endfunction()

# ortin_test(NAME SOURCES a.cpp... LIBRARIES x... [DPI144 [ONCE pattern...]] [DISPLAY] [PRINTER|NO_PRINTER]): one program
# and one CTest entry, or two.
#   DPI144   the program runs again, as NAME@144 with the label dpi144, where a logical inch has 144 pixels
#   ONCE     but not these of its tests: thousands of rounds over what no resolution changes
#   DISPLAY  the program moves the real mouse, types or needs the focus: it is alone on a second virtual display with
#            prefixes of its own, so that nobody's window covers its own
#   PRINTER  the program prints: a spooler of its own runs with it, and it runs there, too, because all programs of a
#            prefix share one list of printers
#   NO_PRINTER  the program wants a system that has none: display and prefix are its own, and no spooler is found from
#               there
function(ortin_test name)
    cmake_parse_arguments(arg "DPI144;DISPLAY;PRINTER;NO_PRINTER" "" "SOURCES;LIBRARIES;ONCE" ${ARGN})
    ortin_need_googletest()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ortin_warnings ortin_platform_options ${arg_LIBRARIES} gtest gmock)
    # Lines are all that is shown of where a test fell, and less of it compiles a sixth faster.
    target_compile_options(${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-g1>)
    set(entries ${name})
    if(WIN32)
        set(runner ${PROJECT_SOURCE_DIR}/scripts/wine-run.sh)
        if(arg_PRINTER)
            set(runner ${PROJECT_SOURCE_DIR}/scripts/printer.sh ${CMAKE_BINARY_DIR}/printed ${runner})
        endif()
        add_test(NAME ${name} COMMAND ${runner} 96 $<TARGET_FILE:${name}>)
        if(arg_DPI144)
            set(without_once "")
            if(arg_ONCE)
                list(JOIN arg_ONCE ":" once)
                set(without_once --gtest_filter=-${once})
            endif()
            add_test(NAME ${name}@144 COMMAND ${runner} 144 $<TARGET_FILE:${name}> ${without_once})
            set_tests_properties(${name}@144 PROPERTIES LABELS dpi144)
            list(APPEND entries ${name}@144)
        endif()
    else()
        add_test(NAME ${name} COMMAND ${name})
    endif()
    set_tests_properties(${entries} PROPERTIES TIMEOUT 600)
    if(arg_NO_PRINTER)
        set(apart ${CMAKE_BINARY_DIR}/without-printer)
        set_tests_properties(${entries} PROPERTIES
            ENVIRONMENT "DISPLAY=;ORTIN_WINE_FOLDER=${apart}/wine;CUPS_SERVER=${apart}/no-spooler")
    elseif(arg_DISPLAY OR arg_PRINTER)
        # Alone: a busy machine tells late where the mouse is, and hands release what they had not yet dragged.
        set_tests_properties(${entries} PROPERTIES
            RUN_SERIAL TRUE ENVIRONMENT "DISPLAY=;ORTIN_WINE_FOLDER=${CMAKE_BINARY_DIR}/wine-alone")
    endif()
endfunction()
