# Settings that every target of the project shares, and the one way to add a library.
include(GNUInstallDirs)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Without these ccache gives up on every file that uses a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  endif()
endif()

if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  # The older floating-point unit keeps more digits and a wider range in its registers than a double has, so that a number
  # would be another one once it is stored. Hosts align their stack to 4 bytes only.
  add_compile_options(-msse2 -mfpmath=sse -mincoming-stack-boundary=2)
endif()

# The presets compile this many sources at once, in a fifth of the time. A change of one of them costs all.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 10)

add_library(orx_options INTERFACE)
target_compile_options(orx_options INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor $<$<BOOL:${ORX_WARNINGS_AS_ERRORS}>:-Werror>
  $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 14)
  # These report std::string of the compiler's own library when it is inlined (fixed in later releases).
  target_compile_options(orx_options INTERFACE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow)
endif()
if(WIN32)
  target_compile_definitions(orx_options INTERFACE
    UNICODE NOMINMAX WIN32_LEAN_AND_MEAN WINVER=0x0A00 _WIN32_WINNT=0x0A00)
endif()
if(ORX_SANITIZE)
  target_compile_options(orx_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orx_options INTERFACE -fsanitize=address,undefined)
  # The fuzzer has to see which branches of the libraries it has come to.
  set(ORX_FUZZED $<$<CXX_COMPILER_ID:Clang>:-fsanitize=fuzzer-no-link>)
endif()

# For the project's own sources, which include any header under src/; hosts have the public ones alone.
add_library(orx_internals INTERFACE)
target_include_directories(orx_internals INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(orx_internals INTERFACE orx_options)

# orx_add_library(NAME ALIAS DIRS...): a static library of all sources in the named folders of src/.
function(orx_add_library name)
  set(sources)
  foreach(dir IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${dir}/*.cpp ${PROJECT_SOURCE_DIR}/src/${dir}/*.h)
    list(APPEND sources ${found})
  endforeach()
  add_library(${name} STATIC ${sources})
  add_library(OrvexMapDialogs2::${name} ALIAS ${name})
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:orx_internals>)
  add_dependencies(${name} orx_public_headers)
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_compile_options(${name} PRIVATE ${ORX_FUZZED})
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${ORX_PUBLIC_INCLUDE}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()
