# Installs what BUILD built into a new folder under WORK, and builds and starts the programs of EXAMPLES and a reader of
# the help, from TESTS, with nothing but the installed package. Run with cmake -P.
file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/installed"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(program IN ITEMS "${EXAMPLES}/minimal-host" "${EXAMPLES}/minimal-tool" "${TESTS}/installed_help")
  cmake_path(GET program FILENAME name)
  execute_process(COMMAND "${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${program}" -B "${WORK}/${name}"
    "-DCMAKE_PREFIX_PATH=${WORK}/installed" COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/${name}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()

execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK}/minimal-host/minimal-host"
  ERROR_VARIABLE answer)
if(NOT answer MATCHES "Usage: minimal-host")
  message(FATAL_ERROR "The host does not start; it said: ${answer}")
endif()
execute_process(COMMAND "${WORK}/minimal-tool/minimal-tool" "${SAMPLES}/configuration.xml" "${SAMPLES}/catalogue.xml"
  "${SAMPLES}/cycle-old.xml" OUTPUT_VARIABLE answer COMMAND_ERROR_IS_FATAL ANY)
if(NOT answer MATCHES "<VERSION>03</VERSION>")
  message(FATAL_ERROR "The tool wrote no cycle of the newest format: ${answer}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK}/installed_help/installed-help"
  OUTPUT_VARIABLE answer ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(NOT answer MATCHES "Cycle Editor Help")
  message(FATAL_ERROR "The library shows no help: ${answer}")
endif()
