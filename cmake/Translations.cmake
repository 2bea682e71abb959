# kz_translations(TARGET NAME): compiles resources/translations/NAME_*.ts beside the CMakeLists.txt into Qt resources of
# the target, as :/NAME/translations/NAME_de.qm and so on.
function(kz_translations target name)
  file(GLOB sources CONFIGURE_DEPENDS resources/translations/${name}_*.ts)
  qt_add_lrelease(${target} TS_FILES ${sources} QM_FILES_OUTPUT_VARIABLE compiled)
  qt_add_resources(${target} ${name}Translations
    PREFIX /${name}/translations BASE ${CMAKE_CURRENT_BINARY_DIR} FILES ${compiled})
endfunction()
