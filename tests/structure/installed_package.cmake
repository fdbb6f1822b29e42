# Installs what BUILD built into a new folder under WORK, and builds and starts the programs of EXAMPLES with nothing but
# the installed package. Run with cmake -P.
file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/installed"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(example IN ITEMS minimal-host minimal-tool)
  execute_process(COMMAND "${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${EXAMPLES}/${example}" -B "${WORK}/${example}"
    "-DCMAKE_PREFIX_PATH=${WORK}/installed" COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/${example}" COMMAND_ERROR_IS_FATAL ANY)
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
