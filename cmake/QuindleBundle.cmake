# The bundle: one tree on every platform, the same in the build folder as installed, so that a program that was
# only built finds its information and resources as an installed one does.

set(QUINDLE_BUNDLE "Quindle Helper/Quindle.app/Contents/Resources/Quindle-Helper.app")
set(QUINDLE_BUNDLE_CONTENTS "${CMAKE_BINARY_DIR}/${QUINDLE_BUNDLE}/Contents")
set(QUINDLE_INSTALL_CONTENTS "lib/${QUINDLE_BUNDLE}/Contents")

# quindle_program(NAME [INTERNAL]): puts the program into the bundle, and a link to it into bin when installed. One that is
# INTERNAL is started by the others only.
function(quindle_program name)
    cmake_parse_arguments(ARG "INTERNAL" "" "" ${ARGN})
    quindle_compiles_together(${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${QUINDLE_BUNDLE_CONTENTS}/Linux")
    install(TARGETS ${name} RUNTIME DESTINATION "${QUINDLE_INSTALL_CONTENTS}/Linux")
    if(ARG_INTERNAL)
        return()
    endif()
    install(CODE "
        set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
        file(MAKE_DIRECTORY \"\${bin}\")
        file(CREATE_LINK \"../${QUINDLE_INSTALL_CONTENTS}/Linux/${name}\" \"\${bin}/${name}\" SYMBOLIC)")
endfunction()
