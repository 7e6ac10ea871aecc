# One static library for each folder. Headers are included with their folder ("battery/QDBattery.h").
#
#   quindle_library(NAME SOURCES file... USES target... [PRIVATE_USES target...])
function(quindle_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES;PRIVATE_USES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE ${ARG_PRIVATE_USES})
    quindle_counts_coverage(${name})
    quindle_compiles_together(${name} 12)
    quindle_reads_precompiled(${name} ${ARG_USES})
endfunction()

# Of the libraries only: which of their own lines the tests run means nothing.
function(quindle_counts_coverage name)
    if(QUINDLE_COVERAGE)
        target_compile_options(${name} PRIVATE --coverage -fprofile-update=atomic)
        target_link_options(${name} INTERFACE --coverage)
    endif()
endfunction()

# Most of a cold build's time goes into reading Qt's headers once for each small file, so the files of a library are
# compiled a few at a time. Each file as itself: QUINDLE_FILE_BY_FILE, and scripts/check-files.
function(quindle_compiles_together name at_a_time)
    if(NOT QUINDLE_FILE_BY_FILE)
        set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${at_a_time})
        # Meant for headers, which a source file looks like here.
        target_compile_options(${name} PRIVATE "$<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>")
    endif()
endfunction()

# What most files of all libraries read, compiled once. Another time for those with widgets, since Qt's headers ask which of
# its libraries are used.
function(quindle_reads_precompiled name)
    if(QUINDLE_FILE_BY_FILE)
        return()
    endif()
    set(headers quindle_precompiled)
    if("Qt6::Widgets" IN_LIST ARGN)
        set(headers quindle_precompiled_widgets)
    endif()
    target_precompile_headers(${name} REUSE_FROM ${headers})
    # g++ does not know any more which of these lines are the standard library's own, and doubts them too.
    target_compile_options(${name} PRIVATE
        "$<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized;-Wno-stringop-overread>")
endfunction()

# quindle_precompile(NAME LIBRARY header...)
function(quindle_precompile name library)
    # CMake compiles headers for a target only if it has a source file.
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "// Nothing\n")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${library})
    quindle_counts_coverage(${name})
    target_precompile_headers(${name} PRIVATE <algorithm> <array> <functional> <memory> <optional> <utility> <vector>
        <QByteArray> <QDateTime> <QLoggingCategory> <QObject> <QStringList> <QVariantMap> ${ARGN})
endfunction()

# What every test reads.
function(quindle_precompiles_for_tests name)
    quindle_compiles_as_test(${name})
    if(NOT QUINDLE_FILE_BY_FILE)
        target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <algorithm> <functional> <memory> <optional> <vector>
            <QDateTime> <QObject> <QVariant> ${ARGN})
    endif()
endfunction()

# A sixth of the time that tests take to compile goes into names and types for the debugger; lines are enough there. A
# quarter of it under the sanitizers goes into looking for undefined behaviour of the tests themselves; that is looked for
# in the program.
function(quindle_compiles_as_test name)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-g1>)
    if(QUINDLE_SANITIZE)
        target_compile_options(${name} PRIVATE -fno-sanitize=undefined)
    endif()
endfunction()

# The folders with QObjects or .ui files ask for moc and uic; the others are spared their cost. A source file includes what
# moc made of its header, at its end: compiled by itself that would read every header once more.
function(quindle_uses_moc name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
    # So what is left of moc's is empty, and needs no header read.
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()
