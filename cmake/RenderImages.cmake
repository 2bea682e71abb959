# kz_render_images(TARGET PREFIX SVGS...): renders each NAME.svg for light and dark windows at 1x and 2x, as NAME.png,
# NAME@2x.png, NAME_dark.png and NAME_dark@2x.png, and puts the pictures into a Qt resource of the target below PREFIX.
# The pictures are drawn with classes ("ink", "accent", ...) whose colours are in the scheme's style sheet.
find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(FATAL_ERROR "rsvg-convert is missing: install librsvg2-bin")
endif()

function(kz_render_images target prefix)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_images)
  file(MAKE_DIRECTORY ${folder})
  set(pictures)
  set(qrc "<RCC><qresource prefix=\"${prefix}\">\n")
  foreach(svg IN LISTS ARGN)
    get_filename_component(svg ${svg} ABSOLUTE)
    get_filename_component(name ${svg} NAME_WE)
    foreach(scheme light dark)
      set(sheet ${CMAKE_SOURCE_DIR}/cmake/images-${scheme}.css)
      set(base ${name})
      if(scheme STREQUAL "dark")
        string(APPEND base _dark)
      endif()
      set(small ${base}.png)
      set(large ${base}@2x.png)
      add_custom_command(
        OUTPUT ${folder}/${small} ${folder}/${large}
        COMMAND ${RSVG_CONVERT} --stylesheet ${sheet} -o ${folder}/${small} ${svg}
        COMMAND ${RSVG_CONVERT} --stylesheet ${sheet} --zoom 2 -o ${folder}/${large} ${svg}
        DEPENDS ${svg} ${sheet}
        COMMENT "Rendering ${base}"
        VERBATIM)
      list(APPEND pictures ${folder}/${small} ${folder}/${large})
      string(APPEND qrc "<file>${small}</file><file>${large}</file>\n")
    endforeach()
  endforeach()
  string(APPEND qrc "</qresource></RCC>\n")
  file(CONFIGURE OUTPUT ${folder}/${target}_images.qrc CONTENT "${qrc}" @ONLY)

  set(source ${folder}/qrc_${target}_images.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND Qt6::rcc --name ${target}_images --output ${source} ${folder}/${target}_images.qrc
    DEPENDS ${folder}/${target}_images.qrc ${pictures}
    COMMENT "Packing the images of ${target}"
    VERBATIM)
  set_source_files_properties(${source} PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
  target_sources(${target} PRIVATE ${source})
endfunction()
