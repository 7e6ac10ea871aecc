# Lists the suites of a program of tests for ctest, each a test of its own: GoogleTest's module for CMake knows cases only, and
# two thousand processes take longer to start and end than their cases need.
# A suite with a skipped case passes or fails like any other; scripts/check-skipped finds it.
#
#   cmake -DPROGRAM=file -DLIST=file -P DiscoverSuites.cmake
execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
# A suite's line ends with a full stop, or with one and a remark; those of its cases are indented.
string(REGEX MATCHALL "(^|\n)[A-Za-z_][^ \n]*\\.( |\n)" suites "${listed}")
set(tests "")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "[ \n]|\\.[ \n]$" "" suite "${suite}")
    string(APPEND tests "add_test([==[${suite}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}.*]==])\n"
        "set_tests_properties([==[${suite}]==] PROPERTIES TIMEOUT 600)\n")
endforeach()
if(tests STREQUAL "")
    message(FATAL_ERROR "${PROGRAM} has no suite of tests")
endif()
file(WRITE "${LIST}" "${tests}")
