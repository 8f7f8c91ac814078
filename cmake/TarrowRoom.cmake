set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

# One static library per folder, its room. A room sees the rooms that it links and no others, so that an upward include
# does not compile: each has an include root of its own in the build folder, with nothing in it but a link to the room at
# its place in the tree. An include line names the room, as in <ui/look.h>; farmlibs/ and tools/ are left out of the name.
#
#   tarrow_add_room(net SOURCES … HEADERS … DEPENDS … [PRIVATE_DEPENDS …])
#
# makes the target tarrow_net. Its headers are checked to be self-contained by the target
# all_verify_interface_header_sets.
function(tarrow_add_room name)
  cmake_parse_arguments(PARSE_ARGV 1 ROOM "" "" "SOURCES;HEADERS;DEPENDS;PRIVATE_DEPENDS")
  set(target tarrow_${name})
  tarrow_include_root(${name} root folder)
  add_library(${target} STATIC ${ROOM_SOURCES} ${ROOM_HEADERS})
  list(TRANSFORM ROOM_HEADERS PREPEND ${folder}/ OUTPUT_VARIABLE headers)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${root} FILES ${headers})
  # The same headers are read at their own place.
  set_source_files_properties(${headers} PROPERTIES SKIP_AUTOGEN ON)
  target_link_libraries(${target} PUBLIC ${ROOM_DEPENDS} PRIVATE ${ROOM_PRIVATE_DEPENDS})
endfunction()

# The include root of the current folder, and the link in it that stands for the folder.
function(tarrow_include_root name root_variable folder_variable)
  set(root ${CMAKE_BINARY_DIR}/rooms/${name})
  file(RELATIVE_PATH place ${CMAKE_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  string(REGEX REPLACE "^(farmlibs|tools)/" "" place ${place})
  get_filename_component(above ${root}/${place} DIRECTORY)
  file(MAKE_DIRECTORY ${above})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${place} SYMBOLIC)
  set(${root_variable} ${root} PARENT_SCOPE)
  set(${folder_variable} ${root}/${place} PARENT_SCOPE)
endfunction()

# A part that brings libraries along and is loaded when it is first needed, by Module::function("<name>", …). What is
# installed with the program is the global property TARROW_MODULES.
function(tarrow_add_module name)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "" "SOURCES;DEPENDS")
  add_library(${name} MODULE ${MODULE_SOURCES})
  target_link_libraries(${name} PRIVATE ${MODULE_DEPENDS})
  set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
  set_property(GLOBAL APPEND PROPERTY TARROW_MODULES ${name})
endfunction()

# Adds farmlibs/<folder>, or, when the cache variable names a CMake package, takes the target from that package.
macro(tarrow_farm_library folder target variable)
  set(${variable} "" CACHE STRING "CMake package that provides ${target} in place of farmlibs/${folder}")
  if(${variable})
    find_package(${${variable}} REQUIRED)
  else()
    add_subdirectory(farmlibs/${folder})
  endif()
endmacro()
