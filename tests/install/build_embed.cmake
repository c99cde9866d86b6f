function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed (${result}): ${ARGV}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} -S ${EXAMPLE_DIR} -B ${WORK_DIR}/build -G Ninja
    -D CMAKE_PREFIX_PATH=${WORK_DIR}/prefix -D CMAKE_EXE_LINKER_FLAGS=${LINK_OPTIONS})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/embed --once)
