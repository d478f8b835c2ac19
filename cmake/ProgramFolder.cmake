# The program folder is the folder of the executable: everything that the
# program reads at run time is laid out there under the names it reads.
file(GLOB_RECURSE data_files CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/data ${PROJECT_SOURCE_DIR}/data/*)
set(staged)
foreach(file IN LISTS data_files)
  set(target "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${file}")
  add_custom_command(
    OUTPUT "${target}"
    COMMAND ${CMAKE_COMMAND} -E copy "${PROJECT_SOURCE_DIR}/data/${file}" "${target}"
    DEPENDS "${PROJECT_SOURCE_DIR}/data/${file}"
    VERBATIM)
  list(APPEND staged "${target}")
endforeach()
add_custom_target(program-folder ALL DEPENDS ${staged})
file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/save)

if(TARGET make-pictures)
  # Pictures and icons are drawn from the bearings' geometry at build time. The desktop's icons lie apart: they are
  # no part of the program folder.
  set(desktop_icons ${PROJECT_BINARY_DIR}/desktop-icons)
  add_custom_command(
    OUTPUT ${PROJECT_BINARY_DIR}/pictures.drawn
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:make-pictures>
      ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} ${desktop_icons}
    COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/pictures.drawn
    DEPENDS make-pictures
    VERBATIM)
  add_custom_target(program-pictures ALL DEPENDS ${PROJECT_BINARY_DIR}/pictures.drawn)
endif()
