# Tests of the Windows builds: GoogleTest from the sources of the distribution, programs run by Wine.
set(ORX_GTEST_SOURCES /usr/src/googletest CACHE PATH "The sources of GoogleTest")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${ORX_GTEST_SOURCES} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
if(NOT TARGET GTest::gtest)
  add_library(GTest::gtest ALIAS gtest)
endif()

set(ORX_WINE_FOLDER ${PROJECT_BINARY_DIR}/wine CACHE PATH "The folder of the Wine prefixes that the tests use")
set(ORX_TEST_RUNNER ${PROJECT_SOURCE_DIR}/tools/wine-run)
set(ORX_TEST_ENVIRONMENT "ORX_WINE_FOLDER=${ORX_WINE_FOLDER}")
