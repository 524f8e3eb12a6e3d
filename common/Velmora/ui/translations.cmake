# The module's catalogs: resources/translations/velmora_<locale>.ts are the sources, lrelease
# compiles them into the build tree, and rcc compiles those into libvelmora under
# ":/Tarvex7300/Velmora/Translations/". VelmoraTranslations installs them on request.
#
# When tr keys change, `cmake --build build --target velmora-lupdate` brings the .ts files of
# the module and of the toolkit up to date (new keys unfinished, removed keys dropped), and
# through velmora-viewer-lupdate those of the viewer (tools/viewer/CMakeLists.txt); the
# translation catalog test fails until every key has its finished translation.
target_sources(velmora_ui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/VelmoraTranslations.h
  ${CMAKE_CURRENT_LIST_DIR}/VelmoraTranslations.cpp
)

set(VELMORA_TRANSLATION_LOCALES en zh_CN)
set(VELMORA_TS_DIR ${VELMORA_ROOT}/resources/translations)
set(VELMORA_QM_DIR ${CMAKE_CURRENT_BINARY_DIR}/translations)
set(VELMORA_TS_FILES)
set(VELMORA_QRC_ENTRIES "")
foreach(locale IN LISTS VELMORA_TRANSLATION_LOCALES)
  list(APPEND VELMORA_TS_FILES ${VELMORA_TS_DIR}/velmora_${locale}.ts)
  string(APPEND VELMORA_QRC_ENTRIES "    <file>velmora_${locale}.qm</file>\n")
endforeach()
set_source_files_properties(${VELMORA_TS_FILES} PROPERTIES OUTPUT_LOCATION ${VELMORA_QM_DIR})
qt5_add_translation(VELMORA_QM_FILES ${VELMORA_TS_FILES})

file(CONFIGURE OUTPUT ${VELMORA_QM_DIR}/velmora_translations.qrc CONTENT
"<!DOCTYPE RCC>
<RCC version=\"1.0\">
  <qresource prefix=\"/Tarvex7300/Velmora/Translations\">
@VELMORA_QRC_ENTRIES@  </qresource>
</RCC>
" @ONLY)
# rcc runs by hand (not AUTORCC) because the .qm files only exist after lrelease.
set(VELMORA_TRANSLATIONS_QRC_CPP ${CMAKE_CURRENT_BINARY_DIR}/qrc_velmora_translations.cpp)
add_custom_command(
  OUTPUT ${VELMORA_TRANSLATIONS_QRC_CPP}
  COMMAND Qt5::rcc --name velmora_translations --output ${VELMORA_TRANSLATIONS_QRC_CPP}
          ${VELMORA_QM_DIR}/velmora_translations.qrc
  DEPENDS ${VELMORA_QM_FILES} ${VELMORA_QM_DIR}/velmora_translations.qrc
  COMMENT "Compiling the module's translations"
  VERBATIM)
set_source_files_properties(${VELMORA_TRANSLATIONS_QRC_CPP} PROPERTIES SKIP_AUTOGEN ON)
target_sources(velmora_ui PRIVATE ${VELMORA_TRANSLATIONS_QRC_CPP})

# Refreshes the .ts sources from the code; never part of a normal build, which only reads them.
set(VELMORA_TOOLKIT_DIR ${VELMORA_ROOT}/platform/TarvexGUIToolkit)
set(VELMORA_TOOLKIT_TS_FILES)
foreach(locale IN LISTS VELMORA_TRANSLATION_LOCALES)
  list(APPEND VELMORA_TOOLKIT_TS_FILES ${VELMORA_TOOLKIT_DIR}/translations/tarvexguitoolkit_${locale}.ts)
endforeach()
add_custom_target(velmora-lupdate
  COMMAND Qt5::lupdate -no-obsolete -locations none ${VELMORA_ROOT}/common -ts ${VELMORA_TS_FILES}
  COMMAND Qt5::lupdate -no-obsolete -locations none ${VELMORA_TOOLKIT_DIR}/src ${VELMORA_TOOLKIT_DIR}/include
          -ts ${VELMORA_TOOLKIT_TS_FILES}
  WORKING_DIRECTORY ${VELMORA_ROOT}
  COMMENT "Refreshing the translation sources from the code"
  VERBATIM)
