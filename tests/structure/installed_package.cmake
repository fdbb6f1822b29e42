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

# Runs the tool on a cycle: how it ends, what it writes and what it says must be as expected.
function(expect_tool cycle ends writes says)
  execute_process(
    COMMAND "${WORK}/minimal-tool/minimal-tool" "${SAMPLES}/configuration.xml" "${SAMPLES}/catalogue.xml" "${cycle}"
    RESULT_VARIABLE result OUTPUT_VARIABLE written ERROR_VARIABLE said)
  if(NOT result EQUAL ends OR NOT written MATCHES "${writes}" OR NOT said MATCHES "${says}")
    message(FATAL_ERROR "The tool on ${cycle} ended with ${result}, not ${ends}, wrote ${written} and said ${said}")
  endif()
endfunction()
file(READ "${SAMPLES}/cycle-old.xml" old)
string(REPLACE "<PARAMVALUE>25</PARAMVALUE>" "<PARAMVALUE>99999</PARAMVALUE>" faulty "${old}")
file(WRITE "${WORK}/faulty.xml" "${faulty}")
string(REPLACE "<PARAMVALUE>25</PARAMVALUE>" "<PARAMVALUE>2&lt;5</PARAMVALUE>" unwritable "${old}")
file(WRITE "${WORK}/unwritable.xml" "${unwritable}")
file(WRITE "${WORK}/broken.xml" "<CYCLE>\n  <VARIABLES>\n</CYCLE>")
file(WRITE "${WORK}/macro.txt" "[PMA]\r\nREPEAT(2)\r\nEND()\r\nREPEAT(0)")
expect_tool("${SAMPLES}/cycle-old.xml" 0 "<VERSION>03</VERSION>" "^$")
expect_tool("${WORK}/faulty.xml" 1 "<VERSION>03</VERSION>" "Line 3, ASPIRATE: Volume 99999 is out of range\\. Enter ")
expect_tool("${WORK}/unwritable.xml" 1 "^$" "\"2<5\" of the parameter \"Volume\\(ul\\)\" in line 3")
expect_tool("${WORK}/broken.xml" 1 "^$" "broken\\.xml:3:[0-9]+: ")
expect_tool("${WORK}/macro.txt" 1 "<ATOMLINE>REPEAT\\(2,\\)</ATOMLINE>" "macro\\.txt:4:8: ")
expect_tool("${WORK}/missing.xml" 1 "^$" "missing\\.xml: The file cannot be read")
expect_tool("${WORK}" 1 "^$" "The file cannot be read")

execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK}/installed_help/installed-help"
  OUTPUT_VARIABLE answer ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(NOT answer MATCHES "Cycle Editor Help")
  message(FATAL_ERROR "The library shows no help: ${answer}")
endif()
