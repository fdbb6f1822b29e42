# Compiles the help with SCRIPT into a new folder under WORK, and compares what is in it with the files of HELP. Run
# with cmake -P.
file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${SCRIPT}" "${WORK}/output" COMMAND_ERROR_IS_FATAL ANY)
find_program(CHMLS NAMES chmls chmls-3.2.2 REQUIRED)
execute_process(COMMAND "${CHMLS}" --no-page --name-only list "${WORK}/output/mavCycEd.chm"
  OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE files RELATIVE "${HELP}" "${HELP}/*")
list(FILTER files EXCLUDE REGEX "\\.hhp$")
list(LENGTH files count)
if(count LESS 10)
  message(FATAL_ERROR "Only ${count} files in ${HELP}")
endif()
foreach(file IN LISTS files)
  if(NOT listed MATCHES "(^|\n)/${file}\r?\n")
    message(FATAL_ERROR "The help file lacks ${file}; it holds:\n${listed}")
  endif()
  execute_process(COMMAND "${CHMLS}" extract "${WORK}/output/mavCycEd.chm" "/${file}" "${WORK}/extracted"
    OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(SHA256 "${WORK}/extracted" inside)
  file(SHA256 "${HELP}/${file}" outside)
  if(NOT inside STREQUAL outside)
    message(FATAL_ERROR "${file} is another one in the help file")
  endif()
endforeach()
if(NOT listed MATCHES "/\\$FIftiMain")
  message(FATAL_ERROR "The help file cannot be searched")
endif()
