# Tests of the Windows build: GoogleTest from the sources of the distribution, programs run by Wine.
set(ORX_GTEST_SOURCES /usr/src/googletest CACHE PATH "The sources of GoogleTest")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${ORX_GTEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
if(NOT TARGET GTest::gtest)
  add_library(GTest::gtest ALIAS gtest)
endif()

set(ORX_WINE_FOLDER ${CMAKE_SOURCE_DIR}/build/wine CACHE PATH "The folder of the Wine prefixes that the tests use")

# orx_add_windows_test(TARGET LABEL PREFIX [VARIABLE=VALUE]): the whole program is one test, as starting one for each
# case takes longer than most cases. What it prints is counted by ./check.
function(orx_add_windows_test target label prefix)
  string(REGEX REPLACE "\\.$" "" name ${prefix})
  add_test(NAME windows.${name}.${target} COMMAND ${CMAKE_SOURCE_DIR}/tools/wine-run $<TARGET_FILE:${target}>)
  set_tests_properties(windows.${name}.${target} PROPERTIES LABELS ${label} TIMEOUT 300
    ENVIRONMENT "ORX_WINE_FOLDER=${ORX_WINE_FOLDER};${ARGN}")
endfunction()
