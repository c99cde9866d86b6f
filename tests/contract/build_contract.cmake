# Builds the contract host, the library against it, and a program against both, each from the installed files of those
# before; then runs the program. The build folders stay, so that a second time only what has changed is built.
function(run failure)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${failure}\nfailed (${result}): ${ARGN}")
    endif()
endfunction()

# build(folder source failure) configures and builds; install(folder) installs what was built.
function(build folder source failure)
    run("${failure}" ${CMAKE_COMMAND} -C ${SETTINGS} -S ${source} -B ${WORK_DIR}/${folder} -G Ninja
        -D CMAKE_PREFIX_PATH=${WORK_DIR}/prefix ${ARGN})
    run("${failure}" ${CMAKE_COMMAND} --build ${WORK_DIR}/${folder} --parallel 2)
endfunction()
function(install folder)
    run("${folder} cannot be installed." ${CMAKE_COMMAND} --install ${WORK_DIR}/${folder} --prefix ${WORK_DIR}/prefix)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR}/prefix)

build(host ${SOURCE_DIR}/tests/contract/host "The contract host (tests/contract/host) does not build by itself.")
install(host)

build(library ${SOURCE_DIR} "The library does not build against the contract host.
If it uses an operation of the application's libraries that it did not use before: declare it in tests/contract/host, \
let it store its value, and list it in docs/embedding.md."
    -D PROPERTIES_HOST_PACKAGE=ContractHost -D CMAKE_UNITY_BUILD=ON)
install(library)

build(program ${SOURCE_DIR}/tests/contract/program "The program does not build with the installed library.")
run("The program fails over the contract host." ${CMAKE_CTEST_COMMAND} --test-dir ${WORK_DIR}/program
    --output-on-failure --no-tests=error)
