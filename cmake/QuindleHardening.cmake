# What makes a mistake with memory end the program instead of serving an attacker. tests/hardening looks at the built
# programs for each of these. The sanitizers bring their own checks, which these would hide.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)

if(QUINDLE_SANITIZE OR QUINDLE_FUZZ)
    return()
endif()

# What only some processors or compilers have: -fcf-protection is for x86, -mbranch-protection for ARM.
add_compile_options(-fstack-protector-strong)
# clang takes one that its target has no use for with a warning, which would fail a build with -Werror.
set(CMAKE_REQUIRED_FLAGS -Werror)
foreach(option -fstack-clash-protection -fcf-protection=full -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "QUINDLE_HAS${option}" has)
    check_cxx_compiler_flag(${option} ${has})
    if(${has})
        add_compile_options(${option})
    endif()
endforeach()
unset(CMAKE_REQUIRED_FLAGS)

# The C library's checks of sizes need the optimiser. Level 3 also follows sizes known only when the program runs.
set(level 2)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
    set(level 3)
endif()
add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level}>")

# These are of ELF. A Mac's linker has its own ways, and the hardened runtime comes with the signature.
if(APPLE)
    return()
endif()

add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)

# A program is noted to be fit for shadow stacks (SHSTK) and checked jumps (IBT) where each of its object files is, the
# C library's start files among them. Where those are not (Debian 12), the shadow stack is noted all the same: start
# files do nothing to the stack but call. Checked jumps are not, because their functions lack the marks.
include(CheckLinkerFlag)
if(QUINDLE_HAS_fcf_protection_full)
    set(CMAKE_REQUIRED_FLAGS -fcf-protection=full)
    check_linker_flag(CXX "-Wl,--fatal-warnings,-z,cet-report=error" QUINDLE_START_FILES_ARE_FIT)
    check_linker_flag(CXX "-Wl,--fatal-warnings,-z,shstk" QUINDLE_LINKER_NOTES_SHADOW_STACKS)
    unset(CMAKE_REQUIRED_FLAGS)
    if(NOT QUINDLE_START_FILES_ARE_FIT AND QUINDLE_LINKER_NOTES_SHADOW_STACKS)
        add_link_options(-Wl,-z,shstk)
    endif()
endif()
