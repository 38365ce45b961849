# What `cmake --install` puts in place: the programs, the module with its public headers,
# a CMake package and a pkg-config file for hosts, and the desktop entry, icon and man page.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(DOCMGR_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/DocManager)
set(DOCMGR_PUBLIC_HEADERS
  docmgr/manager/docmanager.h
  docmgr/records/docinfo.h
  docmgr/records/docinfoedit.h
  docmgr/tools/datetime.h
  docmgr/tools/config.h)

# The module's link interface holds only Qt Widgets: its own layers are linked privately.
set(DOCMGR_QT_COMPONENTS Widgets)

# The window program, which docmanager starts, finds the installed module wherever the
# prefix is.
file(RELATIVE_PATH _docmgr_window_to_lib "/${DOCMGR_WINDOW_DIR}" "/${CMAKE_INSTALL_LIBDIR}")
set_target_properties(docmanager-window PROPERTIES INSTALL_RPATH "$ORIGIN/${_docmgr_window_to_lib}")

install(TARGETS docmanager docmanager-samples RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS docmanager-window RUNTIME DESTINATION ${DOCMGR_WINDOW_DIR})
install(TARGETS docmanager-pdfole LIBRARY DESTINATION ${DOCMGR_MODULE_DIR})
install(TARGETS docmgr EXPORT DocManagerTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

foreach(_header IN LISTS DOCMGR_PUBLIC_HEADERS)
  get_filename_component(_dir ${_header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/${_header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${_dir})
endforeach()
install(FILES ${DOCMGR_GENERATED_INCLUDE}/docmgr/docmgr_export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/docmgr)

install(EXPORT DocManagerTargets NAMESPACE DocManager:: DESTINATION ${DOCMGR_PACKAGE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/DocManagerConfig.cmake.in
  ${PROJECT_BINARY_DIR}/package/DocManagerConfig.cmake
  INSTALL_DESTINATION ${DOCMGR_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/DocManagerConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/package/DocManagerConfig.cmake
              ${PROJECT_BINARY_DIR}/package/DocManagerConfigVersion.cmake
        DESTINATION ${DOCMGR_PACKAGE_DIR})

# pkg-config: paths relative to the .pc file, so the prefix given to `cmake --install` holds.
file(RELATIVE_PATH DOCMGR_PC_TO_PREFIX "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
string(REGEX REPLACE "/$" "" DOCMGR_PC_TO_PREFIX "${DOCMGR_PC_TO_PREFIX}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/docmgr.pc.in ${PROJECT_BINARY_DIR}/package/docmgr.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/package/docmgr.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES ${PROJECT_SOURCE_DIR}/host/desktop/docmanager.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/host/desktop/docmanager.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${PROJECT_SOURCE_DIR}/host/desktop/docmanager.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
