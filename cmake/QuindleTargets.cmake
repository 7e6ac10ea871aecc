# One static library for each folder. Headers are included with their folder ("battery/QDBattery.h").
#
#   quindle_library(NAME SOURCES file... USES target... [PRIVATE_USES target...])
function(quindle_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES;PRIVATE_USES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE ${ARG_PRIVATE_USES})
endfunction()

# The folders with QObjects or .ui files ask for moc and uic; the others are spared their cost.
function(quindle_uses_moc name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
endfunction()
