# The bundles: one tree on every platform, the same in the build folder as installed, so that a program that was only
# built finds its information and resources as an installed one does. The helper's lies among the resources of the
# application's.

set(QUINDLE_APPLICATION "Quindle Helper/Quindle.app")
set(QUINDLE_APPLICATION_CONTENTS "${CMAKE_BINARY_DIR}/${QUINDLE_APPLICATION}/Contents")
set(QUINDLE_INSTALL_APPLICATION_CONTENTS "lib/${QUINDLE_APPLICATION}/Contents")
set(QUINDLE_BUNDLE "${QUINDLE_APPLICATION}/Contents/Resources/Quindle-Helper.app")
set(QUINDLE_BUNDLE_CONTENTS "${CMAKE_BINARY_DIR}/${QUINDLE_BUNDLE}/Contents")
set(QUINDLE_INSTALL_CONTENTS "lib/${QUINDLE_BUNDLE}/Contents")

set(QUINDLE_PROGRAM_FOLDER Linux)
if(APPLE)
    set(QUINDLE_PROGRAM_FOLDER MacOS)
endif()

# quindle_program(NAME [INTERNAL] [MAIN] [USES Qt6::Widgets]): puts the program into the helper's bundle, with MAIN into the
# application's, and a link to it into bin when installed. One that is INTERNAL is started by the others only.
function(quindle_program name)
    cmake_parse_arguments(ARG "INTERNAL;MAIN" "" "USES" ${ARGN})
    set(built "${QUINDLE_BUNDLE_CONTENTS}")
    set(installed "${QUINDLE_INSTALL_CONTENTS}")
    if(ARG_MAIN)
        set(built "${QUINDLE_APPLICATION_CONTENTS}")
        set(installed "${QUINDLE_INSTALL_APPLICATION_CONTENTS}")
    endif()
    quindle_compiles_together(${name} 12)
    quindle_reads_precompiled(${name} ${ARG_USES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${built}/${QUINDLE_PROGRAM_FOLDER}")
    install(TARGETS ${name} RUNTIME DESTINATION "${installed}/${QUINDLE_PROGRAM_FOLDER}")
    if(ARG_INTERNAL)
        return()
    endif()
    install(CODE "
        set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
        file(MAKE_DIRECTORY \"\${bin}\")
        file(CREATE_LINK \"../${installed}/${QUINDLE_PROGRAM_FOLDER}/${name}\" \"\${bin}/${name}\" SYMBOLIC)")
endfunction()
