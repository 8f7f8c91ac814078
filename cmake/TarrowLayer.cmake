set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

# One static library per folder. Its include root is the folder itself and it sees the include roots of what it
# links alone, so a header is included by its bare name and an upward include does not compile.
#
#   tarrow_add_layer(net SOURCES … HEADERS … DEPENDS … [PRIVATE_DEPENDS …])
#
# makes the target tarrow_net. Its headers are checked to be self-contained by the target
# all_verify_interface_header_sets.
function(tarrow_add_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 LAYER "" "" "SOURCES;HEADERS;DEPENDS;PRIVATE_DEPENDS")
  set(target tarrow_${name})
  add_library(${target} STATIC ${LAYER_SOURCES})
  target_sources(${target} PUBLIC
    FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${LAYER_HEADERS})
  target_link_libraries(${target} PUBLIC ${LAYER_DEPENDS} PRIVATE ${LAYER_PRIVATE_DEPENDS})
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()

# A part that brings libraries along and is loaded when it is first needed, by TDesktop::ModuleFunction("<name>", …). What is
# installed with the program is the global property TARROW_MODULES.
function(tarrow_add_module name)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "" "SOURCES;DEPENDS")
  add_library(${name} MODULE ${MODULE_SOURCES})
  target_link_libraries(${name} PRIVATE ${MODULE_DEPENDS})
  set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
  set_property(GLOBAL APPEND PROPERTY TARROW_MODULES ${name})
endfunction()

# Adds platform/<folder>, or, when the cache variable names a CMake package, takes the target from that package.
macro(tarrow_platform_library folder target variable)
  set(${variable} "" CACHE STRING "CMake package that provides ${target} in place of platform/${folder}")
  if(${variable})
    find_package(${${variable}} REQUIRED)
  else()
    add_subdirectory(platform/${folder})
  endif()
endmacro()
