# What others link. A library is the objects of some floors, as they are: libvorlane-<name>.a, libvorlane-<name>.so or
# both, as VORLANE_LIBRARIES says. vorlane::<name> is the first of them.
#
#   vorlane_library(<name> FLOORS <floor>... [USES <library>...])
function(vorlane_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FLOORS;USES")
  set(objects)
  set(headers)
  set(links)
  foreach(floor IN LISTS arg_FLOORS)
    list(APPEND objects $<TARGET_OBJECTS:vorlane_${floor}>)
    get_target_property(floor_headers vorlane_${floor} HEADER_SET)
    list(APPEND headers ${floor_headers})
    get_target_property(floor_links vorlane_${floor} INTERFACE_LINK_LIBRARIES)
    list(APPEND links ${floor_links})
  endforeach()

  # What the floors link beside each other: all can be seen in their headers but what is marked as for the linker.
  list(FILTER links EXCLUDE REGEX "vorlane_|NOTFOUND")
  list(REMOVE_DUPLICATES links)
  set(inner ${links})
  list(FILTER inner INCLUDE REGEX LINK_ONLY)
  list(FILTER links EXCLUDE REGEX LINK_ONLY)
  list(TRANSFORM inner REPLACE "^.<LINK_ONLY:(.*)>$" "\\1")

  foreach(kind IN LISTS VORLANE_LIBRARIES)
    string(TOUPPER ${kind} type)
    set(target vorlane_${name}_${kind})
    add_library(${target} ${type} ${objects})
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_link_libraries(${target} PUBLIC ${links} PRIVATE ${inner})
    foreach(used IN LISTS arg_USES)
      target_link_libraries(${target} PUBLIC vorlane_${used}_${kind})
    endforeach()
    set_target_properties(${target} PROPERTIES
      OUTPUT_NAME vorlane-${name}
      EXPORT_NAME ${name}
      LINKER_LANGUAGE CXX
      AUTOMOC OFF
      AUTORCC OFF
      VERSION ${PROJECT_VERSION}
      # Until 1.0 every minor version may break what programs have been linked with.
      SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  endforeach()
  if(TARGET vorlane_${name}_shared)
    vorlane_export_symbols(vorlane_${name}_shared)
  endif()
  list(GET VORLANE_LIBRARIES 0 first)
  add_library(vorlane::${name} ALIAS vorlane_${name}_${first})
endfunction()

# A shared library shows what is the library's own, and is whole.
function(vorlane_export_symbols target)
  set(map ${PROJECT_SOURCE_DIR}/cmake/vorlane.map)
  target_link_options(${target} PRIVATE LINKER:--version-script=${map} LINKER:--no-undefined)
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map} INSTALL_RPATH "$ORIGIN")
endfunction()
