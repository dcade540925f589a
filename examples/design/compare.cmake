# cmake -DCOMMAND=LIST -DPRINTED=FILE -DEXPECTED=FILE -P compare.cmake
#
# Runs a command, keeps what it prints in a file and fails where that is not what is expected.
execute_process(COMMAND ${COMMAND} OUTPUT_FILE "${PRINTED}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files --ignore-eol
        "${PRINTED}" "${EXPECTED}"
    RESULT_VARIABLE differs)
if(differs)
    message(FATAL_ERROR "These differ:\n  ${EXPECTED}\n  ${PRINTED}")
endif()
