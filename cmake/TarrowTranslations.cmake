# tarrow_add_translations(target SOURCES folders… LANGUAGES codes…)
#
# Compiles tarrow_<code>.ts of the current folder into ":/i18n" of whoever links the target, and adds the target
# update_translations, which brings the .ts files in line with the texts in the sources.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

function(tarrow_add_translations target)
  cmake_parse_arguments(PARSE_ARGV 1 TEXTS "" "" "SOURCES;LANGUAGES")
  set(sheets)
  set(entries)
  foreach(code IN LISTS TEXTS_LANGUAGES)
    set(name tarrow_${code})
    add_custom_command(OUTPUT ${name}.qm
      COMMAND Qt6::lrelease -silent ${CMAKE_CURRENT_SOURCE_DIR}/${name}.ts -qm ${name}.qm
      DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}.ts VERBATIM)
    list(APPEND sheets ${CMAKE_CURRENT_SOURCE_DIR}/${name}.ts)
    string(APPEND entries "<file>${name}.qm</file>")
  endforeach()
  file(CONFIGURE OUTPUT translations.qrc @ONLY
    CONTENT "<RCC><qresource prefix=\"/i18n\">@entries@</qresource></RCC>\n")

  # As with the other resources: objects, so that the linker keeps their registration.
  qt_add_resources(objects ${CMAKE_CURRENT_BINARY_DIR}/translations.qrc)
  add_library(${target}_objects OBJECT ${objects})
  set_target_properties(${target}_objects PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  target_link_libraries(${target}_objects PRIVATE Qt6::Core)
  add_library(${target} INTERFACE)
  target_link_libraries(${target} INTERFACE $<TARGET_OBJECTS:${target}_objects> Qt6::Core)

  add_custom_target(update_translations
    COMMAND Qt6::lupdate -silent -locations none -no-obsolete -extensions cpp,h,ui ${TEXTS_SOURCES} -ts ${sheets}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} VERBATIM)
endfunction()
