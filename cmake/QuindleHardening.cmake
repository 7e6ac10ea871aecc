# What makes a mistake with memory end the program in place of serving an attacker. tests/hardening looks at the built
# programs for each of these. The sanitizers bring their own checks, which these would hide.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)

if(QUINDLE_SANITIZE OR QUINDLE_FUZZ)
    return()
endif()

# What only some processors or compilers have: -fcf-protection is for x86, -mbranch-protection for ARM.
add_compile_options(-fstack-protector-strong)
foreach(option -fstack-clash-protection -fcf-protection=full -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "QUINDLE_HAS${option}" has)
    check_cxx_compiler_flag(${option} ${has})
    if(${has})
        add_compile_options(${option})
    endif()
endforeach()

# The C library's checks of sizes need the optimiser. Level 3 also follows sizes known only when the program runs.
set(level 2)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
    set(level 3)
endif()
add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level}>")

add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
