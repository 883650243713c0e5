# run(COMMAND [arguments...]): one step of a test that is a script; the first step that fails ends it.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${status}: ${ARGN}")
    endif()
endfunction()
