# The headers that hosts include, as <orx/Name.h>: those of PublicHeaders.txt, flat in one folder, with their includes of
# each other rewritten. All other headers are internal.
# Run as a script it writes them; included it defines the target that does: orx_public_headers.
if(CMAKE_SCRIPT_MODE_FILE)
  cmake_policy(VERSION 3.25)
  # cmake -DFROM=src -DTO=folder -DLIST=PublicHeaders.txt -P PublicHeaders.cmake
  file(STRINGS ${LIST} headers)
  # What has left the list leaves the folder too.
  file(REMOVE_RECURSE ${TO}/orx)
  foreach(header IN LISTS headers)
    file(READ ${FROM}/${header} text)
    # Brackets and semicolons mean something to lists, but the text never becomes one.
    string(REGEX REPLACE "#include \"([a-z0-9]+/)+([A-Za-z0-9]+\\.h)\"" "#include <orx/\\2>" text "${text}")
    get_filename_component(name ${header} NAME)
    file(CONFIGURE OUTPUT ${TO}/orx/${name} CONTENT "@text@" @ONLY)
  endforeach()
  return()
endif()

set(ORX_PUBLIC_HEADERS ${PROJECT_SOURCE_DIR}/cmake/PublicHeaders.txt)
set(ORX_PUBLIC_INCLUDE ${PROJECT_BINARY_DIR}/include)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ORX_PUBLIC_HEADERS})
file(STRINGS ${ORX_PUBLIC_HEADERS} headers)
list(TRANSFORM headers PREPEND ${PROJECT_SOURCE_DIR}/src/)
set(stamp ${PROJECT_BINARY_DIR}/include/orx.stamp)
add_custom_command(OUTPUT ${stamp}
  COMMAND ${CMAKE_COMMAND} -DFROM=${PROJECT_SOURCE_DIR}/src -DTO=${ORX_PUBLIC_INCLUDE} -DLIST=${ORX_PUBLIC_HEADERS}
    -P ${CMAKE_CURRENT_LIST_FILE}
  COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
  DEPENDS ${ORX_PUBLIC_HEADERS} ${CMAKE_CURRENT_LIST_FILE} ${headers} VERBATIM)
add_custom_target(orx_public_headers DEPENDS ${stamp})
