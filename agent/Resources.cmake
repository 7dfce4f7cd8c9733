# SPDX-License-Identifier: MIT
# Draws the agent's resources into its bundle: the action list, the icons and the pointers.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(PNG2ICNS png2icns REQUIRED)

set(korvex_artwork "${CMAKE_SOURCE_DIR}/agent/artwork")
set(korvex_agent_resources_dir
  "${CMAKE_BINARY_DIR}/Korvex.prefPane/Contents/Linux/Korvex Agent.app/Contents/Resources")
set(korvex_artwork_sources)
foreach(module build shapes actions pointers)
  list(APPEND korvex_artwork_sources "${korvex_artwork}/${module}.py")
endforeach()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${korvex_artwork_sources})

execute_process(
  COMMAND "${Python3_EXECUTABLE}" -B "${korvex_artwork}/build.py" --list
  OUTPUT_VARIABLE korvex_artwork_files OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" korvex_artwork_files "${korvex_artwork_files}")
list(TRANSFORM korvex_artwork_files PREPEND "${korvex_agent_resources_dir}/")

add_custom_command(
  OUTPUT ${korvex_artwork_files}
  COMMAND "${Python3_EXECUTABLE}" -B "${korvex_artwork}/build.py" "${korvex_agent_resources_dir}"
  DEPENDS ${korvex_artwork_sources}
  COMMENT "Drawing the agent's icons and pointers"
  VERBATIM)
add_custom_target(korvex_agent_resources ALL DEPENDS ${korvex_artwork_files})

# The help book shows the actions, too.
set(korvex_pictures "${CMAKE_BINARY_DIR}/Korvex.prefPane/Contents/Resources/help/buttons")
add_custom_command(
  OUTPUT "${korvex_pictures}/click.png"
  COMMAND "${Python3_EXECUTABLE}" -B "${korvex_artwork}/build.py" --pictures "${korvex_pictures}"
  DEPENDS ${korvex_artwork_sources}
  COMMENT "Drawing the buttons of the help book"
  VERBATIM)
add_custom_target(korvex_help_pictures ALL DEPENDS "${korvex_pictures}/click.png")
