# SPDX-License-Identifier: MIT
# The languages: a file for each in Resources/Translations, compiled into the modules that show texts to people. The
# target update-translations, which only translators need, brings the files up to the texts in the sources.
set(translation_folder ${CMAKE_SOURCE_DIR}/Resources/Translations)
file(GLOB translations CONFIGURE_DEPENDS ${translation_folder}/roamlet_*.ts)
find_program(LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
find_program(LUPDATE lupdate HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})

set(compiled_folder ${CMAKE_BINARY_DIR}/Translations)
file(MAKE_DIRECTORY ${compiled_folder})
set(compiled_translations)
set(entries)
foreach(translation IN LISTS translations)
  get_filename_component(name ${translation} NAME_WE)
  set(compiled ${compiled_folder}/${name}.qm)
  add_custom_command(OUTPUT ${compiled}
    COMMAND ${LRELEASE} -silent ${translation} -qm ${compiled}
    DEPENDS ${translation}
    VERBATIM)
  list(APPEND compiled_translations ${compiled})
  string(APPEND entries "<file alias=\"${name}.qm\">${compiled}</file>")
endforeach()

# As it is, and not compressed: then it is read where it lies.
file(CONFIGURE OUTPUT ${compiled_folder}/Translations.qrc @ONLY CONTENT
"<RCC><qresource prefix=\"/Translations\">@entries@</qresource></RCC>
")
set(translation_resources ${compiled_folder}/Translations.cpp)
add_custom_command(OUTPUT ${translation_resources}
  COMMAND Qt6::rcc --no-compress --name Translations --output ${translation_resources}
    ${compiled_folder}/Translations.qrc
  DEPENDS ${compiled_folder}/Translations.qrc ${compiled_translations}
  VERBATIM)
set_source_files_properties(${translation_resources} PROPERTIES SKIP_AUTOMOC ON SKIP_UNITY_BUILD_INCLUSION ON)

if(LUPDATE)
  add_custom_target(update-translations
    COMMAND ${LUPDATE} -silent -locations none -no-obsolete -no-ui-lines
      ${CMAKE_SOURCE_DIR}/Sources/Roamlet -ts ${translations}
    VERBATIM)
endif()
