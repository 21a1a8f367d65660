# Tests of the Windows build: GoogleTest from the sources of the distribution, programs run by Wine.
set(ORX_GTEST_SOURCES /usr/src/googletest CACHE PATH "The sources of GoogleTest")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${ORX_GTEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
if(NOT TARGET GTest::gtest)
  add_library(GTest::gtest ALIAS gtest)
endif()

set(ORX_WINE_FOLDER ${CMAKE_BINARY_DIR}/wine CACHE PATH "The folder of the Wine prefixes that the tests use")

# orx_add_windows_test(TARGET LABELS PREFIX [VARIABLE=VALUE]): the whole program is one test, as starting one for each
# case takes longer than most cases. ./check counts the cases by what the program prints.
function(orx_add_windows_test target labels prefix)
  set(name windows.${prefix}${target})
  set(run ${CMAKE_SOURCE_DIR}/tools/wine-run)
  add_test(NAME ${name} COMMAND ${run} $<TARGET_FILE:${target}> --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES LABELS "${labels}" TIMEOUT 300
    ENVIRONMENT "ORX_WINE_FOLDER=${ORX_WINE_FOLDER};${ARGN}")
endfunction()
