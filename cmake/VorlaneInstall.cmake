# What "cmake --install" lays down: headers, libraries, the CMake package Vorlane, pkg-config files, the editor. All of
# it finds its parts by its own place, so the tree may be moved. Components: runtime (shared libraries), devel, designer,
# editor.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Vorlane)

# The modules of Qt that floors link: those that their headers show, and those that only a linker meets.
function(vorlane_qt_modules shown hidden)
  set(links)
  foreach(floor IN LISTS ARGN)
    get_target_property(floor_links vorlane_${floor} INTERFACE_LINK_LIBRARIES)
    list(APPEND links ${floor_links})
  endforeach()
  list(REMOVE_DUPLICATES links)
  list(FILTER links INCLUDE REGEX Qt6::)
  set(inner ${links})
  list(FILTER links EXCLUDE REGEX LINK_ONLY)
  list(FILTER inner INCLUDE REGEX LINK_ONLY)
  list(TRANSFORM links REPLACE "Qt6::" "")
  list(TRANSFORM inner REPLACE ".*Qt6::([A-Za-z]+).*" "\\1")
  set(${shown} ${links} PARENT_SCOPE)
  set(${hidden} ${inner} PARENT_SCOPE)
endfunction()

# vorlane_install(<name> <description> [REQUIRES <pkg-config name>...] [REQUIRES_PRIVATE <pkg-config name>...])
function(vorlane_install library description)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "REQUIRES;REQUIRES_PRIVATE")
  foreach(kind IN LISTS VORLANE_LIBRARIES)
    install(TARGETS vorlane_${library}_${kind} EXPORT vorlane-${library}-${kind}
      LIBRARY COMPONENT runtime NAMELINK_COMPONENT devel
      ARCHIVE COMPONENT devel
      FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vorlane COMPONENT devel)
    install(EXPORT vorlane-${library}-${kind} NAMESPACE vorlane:: DESTINATION ${package_dir} COMPONENT devel)
  endforeach()

  list(JOIN arg_REQUIRES " " requires)
  list(JOIN arg_REQUIRES_PRIVATE " " requires_private)
  set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH up /${pkgconfig_dir} /)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/vorlane.pc.in ${PROJECT_BINARY_DIR}/vorlane-${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/vorlane-${library}.pc DESTINATION ${pkgconfig_dir} COMPONENT devel)
endfunction()

vorlane_install(core "The controls of Vorlane, without a desktop")
vorlane_install(headless "A desktop without a screen, for tests and servers" REQUIRES vorlane-core)
if(TARGET vorlane_widgets)
  vorlane_qt_modules(qt_shown qt_hidden qt widgets)
  list(TRANSFORM qt_shown PREPEND Qt6 OUTPUT_VARIABLE shown)
  list(TRANSFORM qt_hidden PREPEND Qt6 OUTPUT_VARIABLE hidden)
  vorlane_install(widgets "The controls of Vorlane as Qt widgets"
    REQUIRES vorlane-core ${shown} REQUIRES_PRIVATE ${hidden} taglib)
  set(VORLANE_QT_PLUGINS ${CMAKE_INSTALL_LIBDIR}/qt6/plugins CACHE PATH "Where the plug-ins of Qt are installed")
  list(GET VORLANE_LIBRARIES 0 kind)
  if(kind STREQUAL shared)
    set_target_properties(vorlane-editor PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  endif()
  install(TARGETS vorlane-editor RUNTIME COMPONENT editor)
  set_target_properties(vorlane_designer PROPERTIES INSTALL_RPATH "$ORIGIN/../../..")
  install(TARGETS vorlane_designer LIBRARY DESTINATION ${VORLANE_QT_PLUGINS}/designer COMPONENT designer)
endif()

configure_package_config_file(cmake/VorlaneConfig.cmake.in ${PROJECT_BINARY_DIR}/VorlaneConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VorlaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VorlaneConfig.cmake ${PROJECT_BINARY_DIR}/VorlaneConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT devel)
