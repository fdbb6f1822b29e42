# Installs what BUILD built into a new folder under WORK, and builds and starts EXAMPLE with nothing but the installed
# package. Run with cmake -P.
file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/installed"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${EXAMPLE}" -B "${WORK}/host"
  "-DCMAKE_PREFIX_PATH=${WORK}/installed" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/host" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK}/host/minimal-host"
  ERROR_VARIABLE answer)
if(NOT answer MATCHES "Usage: minimal-host")
  message(FATAL_ERROR "The example does not start; it said: ${answer}")
endif()
