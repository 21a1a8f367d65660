# Makes the type library and the C++ header of its interfaces from the IDL files.
find_program(WIDL NAMES widl REQUIRED)
find_path(WIDL_IDL_DIR oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows REQUIRED NO_CMAKE_FIND_ROOT_PATH)
find_path(WIDL_TLB_DIR stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows
  REQUIRED NO_CMAKE_FIND_ROOT_PATH)

# orx_type_library(FOLDER): gives OrvexMapDialogs2.tlb and .h in the folder; the target of that work is orx_typelib.
function(orx_type_library folder)
  set(idl ${PROJECT_SOURCE_DIR}/src/com/OrvexMapDialogs2.idl)
  set(sources ${idl} ${PROJECT_SOURCE_DIR}/src/com/HostObjects.idl)
  set(bits $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>,--win64,--win32>)
  set(widl ${WIDL} ${bits} -I ${WIDL_IDL_DIR} -L ${WIDL_TLB_DIR})
  set(name ${folder}/OrvexMapDialogs2)
  add_custom_command(OUTPUT ${name}.tlb COMMAND ${widl} -t -o ${name}.tlb ${idl} DEPENDS ${sources} VERBATIM)
  add_custom_command(OUTPUT ${name}.h COMMAND ${widl} -h -o ${name}.h ${idl} DEPENDS ${sources} VERBATIM)
  add_custom_target(orx_typelib DEPENDS ${name}.tlb ${name}.h)
endfunction()
