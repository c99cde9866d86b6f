include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
foreach(compiler IN LISTS COMPILERS)
    cmake_path(GET compiler FILENAME name)
    set(build ${WORK_DIR}/${name})
    run(${CMAKE_COMMAND} -S ${EXAMPLE_DIR} -B ${build} -G Ninja -D CMAKE_PREFIX_PATH=${WORK_DIR}/prefix
        -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
        -D CMAKE_EXE_LINKER_FLAGS=${LINK_OPTIONS})
    run(${CMAKE_COMMAND} --build ${build})
    run(${build}/embed --once)
endforeach()
