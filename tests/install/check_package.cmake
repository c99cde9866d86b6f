# Installs what an embedding application gets into a folder of its own, and uses it with each compiler that is there.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# Nothing but libraries, public headers and package files; the headers' own rules are checked by compiling them.
file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${prefix} ${prefix}/*)
set(others ${files})
list(FILTER others EXCLUDE REGEX "^lib.*/libproperties[a-z_]*\\.so[.0-9]*$")
list(FILTER others EXCLUDE REGEX "^lib.*/cmake/Properties(Host)?/[A-Za-z-]+\\.cmake$")
list(FILTER others EXCLUDE REGEX "^include/properties(-host)?/([a-z]+/(engine/)?)?[A-Za-z0-9]+\\.h$")
if(others)
    message(FATAL_ERROR "installed, and not for those who embed the library: ${others}")
endif()
file(GLOB_RECURSE folders LIST_DIRECTORIES true ${prefix}/include/*)
foreach(folder IN LISTS folders)
    file(GLOB content ${folder}/*)
    if(IS_DIRECTORY ${folder} AND NOT content)
        message(FATAL_ERROR "an empty folder is installed: ${folder}")
    endif()
endforeach()

foreach(compiler IN LISTS COMPILERS)
    cmake_path(GET compiler FILENAME name)
    set(build ${WORK_DIR}/${name})
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/package -B ${build} -G Ninja -D PACKAGE_ROOT_DIR=${prefix}
        -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
    run(${CMAKE_COMMAND} --build ${build})
    run(${build}/uses_every_class)

    # One vtable and one typeinfo of each class, and they are the library's.
    execute_process(COMMAND ${NM} --demangle --defined-only ${build}/uses_every_class
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]*(vtable|typeinfo|typeinfo name) for T(Cmd|Property|AttributeCommand|MergingCommand|NetTieCommand|ConnectCommand|ReversibleCommand)[^\n]*"
        copies "${symbols}")
    list(FILTER copies EXCLUDE REGEX " U ")
    if(copies)
        message(FATAL_ERROR "the program of ${name} has copies of its own: ${copies}")
    endif()
endforeach()
