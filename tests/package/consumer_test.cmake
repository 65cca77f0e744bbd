# Installs the build, then configures, builds and runs the project of a stranger against it:
#   cmake -D BUILD=<build folder> -D WORK=<scratch folder> [-D TOOLCHAIN=<file>] [-D GENERATOR=<name>]
#         -P consumer_test.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE _result)
    if(NOT _result EQUAL 0)
        list(JOIN ARGN " " _command)
        message(FATAL_ERROR "failed (${_result}): ${_command}")
    endif()
endfunction()

set(_options -DCMAKE_PREFIX_PATH=${WORK}/prefix -DCMAKE_BUILD_TYPE=Release)
if(TOOLCHAIN)
    list(APPEND _options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${WORK}/build
    ${_options})
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${CMAKE_CTEST_COMMAND} --test-dir ${WORK}/build --output-on-failure --no-tests=error)
