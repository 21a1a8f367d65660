# headers_alone: compiles every header by itself, so that none leans on what another includes first.
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/src/*.h)
# Those of other platforms are tried in the builds for these.
if(WIN32)
  list(FILTER headers INCLUDE REGEX "^(com|desktops/win32)/")
else()
  list(FILTER headers EXCLUDE REGEX "^(com|desktops/win32)/")
endif()
if(NOT TARGET orxMDlgQt)
  list(FILTER headers EXCLUDE REGEX "^desktops/qt/")
endif()

set(sources)
foreach(header IN LISTS headers)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/headers_alone/${header}.cpp)
  # Included twice, so that the guard is tried too.
  file(CONFIGURE OUTPUT ${source} CONTENT "#include \"@header@\"\n#include \"@header@\"\n" @ONLY)
  list(APPEND sources ${source})
endforeach()

add_library(headers_alone OBJECT ${sources})
target_compile_options(headers_alone PRIVATE -O0 -g0)
target_link_libraries(headers_alone PRIVATE orx_internals $<TARGET_NAME_IF_EXISTS:orxMDlgCom>
  $<TARGET_NAME_IF_EXISTS:Qt6::Widgets>)
set_target_properties(headers_alone PROPERTIES UNITY_BUILD OFF)
