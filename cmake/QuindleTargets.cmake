# One static library for each folder. Headers are included with their folder ("battery/QDBattery.h").
#
#   quindle_library(NAME SOURCES file... USES target... [PRIVATE_USES target...])
function(quindle_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES;PRIVATE_USES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE ${ARG_PRIVATE_USES})
    quindle_counts_coverage(${name})
    quindle_precompiles(${name})
endfunction()

# Of the libraries only: which of their own lines the tests run tells nothing.
function(quindle_counts_coverage name)
    if(QUINDLE_COVERAGE)
        target_compile_options(${name} PRIVATE --coverage -fprofile-update=atomic)
        target_link_options(${name} INTERFACE --coverage)
    endif()
endfunction()

# The sanitized build is a second one of the same sources, and most of its time would go into reading headers. That
# each file includes what it needs is for the others to show.
function(quindle_precompiles name)
    if(NOT QUINDLE_SANITIZE)
        return()
    endif()
    set(headers <algorithm> <array> <functional> <memory> <optional> <vector> <QDateTime> <QObject> <QVariant>)
    get_target_property(libraries ${name} LINK_LIBRARIES)
    if("Qt6::Widgets" IN_LIST libraries)
        list(APPEND headers <QApplication> <QLabel> <QPainter>)
    endif()
    target_precompile_headers(${name} PRIVATE ${headers} ${ARGN})
endfunction()

# The folders with QObjects or .ui files ask for moc and uic; the others are spared their cost.
function(quindle_uses_moc name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
endfunction()
