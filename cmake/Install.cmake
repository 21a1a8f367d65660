# What `cmake --install` gives: headers, libraries, a CMake package, pkg-config files, languages and sample data; on Windows
# also the component and its type library.
include(CMakePackageConfigHelpers)

set(ORX_SHARE ${CMAKE_INSTALL_DATADIR}/OrvexMapDialogs2)
set(ORX_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/OrvexMapDialogs2)

set(libraries orxMDlg orxMapLibrary)
set(foreign_headers)
if(TARGET orxMDlgQt)
  list(APPEND libraries orxMDlgQt)
else()
  list(APPEND foreign_headers PATTERN QtDesktop.h EXCLUDE)
endif()
if(NOT WIN32)
  list(APPEND foreign_headers PATTERN Win32Desktop.h EXCLUDE)
endif()
# The headers of desktops that this build does not have stay away.
install(DIRECTORY ${ORX_PUBLIC_INCLUDE}/orx DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${foreign_headers})
if(TARGET orxMDlgServer)
  list(APPEND libraries orxMDlgWin32)
  install(FILES $<TARGET_FILE:orxMDlgServer> DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_BINARY_DIR}/typelib/OrvexMapDialogs2.tlb ${PROJECT_BINARY_DIR}/typelib/OrvexMapDialogs2.h
    src/com/OrvexMapDialogs2.idl src/com/HostObjects.idl DESTINATION ${ORX_SHARE}/typelib)
endif()
install(TARGETS ${libraries} EXPORT OrvexMapDialogs2Targets)
install(EXPORT OrvexMapDialogs2Targets NAMESPACE OrvexMapDialogs2:: DESTINATION ${ORX_PACKAGE})
install(DIRECTORY data/ DESTINATION ${ORX_SHARE})

# The package asks for Qt when it has the Qt desktop.
set(ORX_HAS_QT OFF)
if(TARGET orxMDlgQt)
  set(ORX_HAS_QT ON)
endif()
configure_package_config_file(cmake/OrvexMapDialogs2Config.cmake.in OrvexMapDialogs2Config.cmake
  INSTALL_DESTINATION ${ORX_PACKAGE})
write_basic_package_version_file(OrvexMapDialogs2ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrvexMapDialogs2Config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/OrvexMapDialogs2ConfigVersion.cmake DESTINATION ${ORX_PACKAGE})

# From the folder of the pkg-config files, so that an installation can be moved.
file(RELATIVE_PATH ORX_PC_INCLUDE /p/${CMAKE_INSTALL_LIBDIR}/pkgconfig /p/${CMAKE_INSTALL_INCLUDEDIR})
configure_file(cmake/OrvexMapDialogs2.pc.in OrvexMapDialogs2.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrvexMapDialogs2.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(TARGET orxMDlgQt)
  # Builds of Qt that bring no pkg-config files stand in the linker's own folders.
  find_package(PkgConfig QUIET)
  if(PkgConfig_FOUND)
    pkg_check_modules(ORX_PC_QT QUIET Qt6Widgets)
  endif()
  if(ORX_PC_QT_FOUND)
    set(ORX_PC_QT_REQUIRES "Qt6Widgets")
    set(ORX_PC_QT_LIBS "")
  else()
    set(ORX_PC_QT_REQUIRES "")
    set(ORX_PC_QT_LIBS "-lQt6Widgets -lQt6Gui -lQt6Core")
  endif()
  configure_file(cmake/OrvexMapDialogs2Qt.pc.in OrvexMapDialogs2Qt.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrvexMapDialogs2Qt.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
