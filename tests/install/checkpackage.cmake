# Installs the build into a scratch prefix, then configures, builds and runs a
# consumer project that finds the library with find_package(Streaming).
file(REMOVE_RECURSE "${WORK_DIR}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix"
                RESULT_VARIABLE result OUTPUT_QUIET)
if(result)
    message(FATAL_ERROR "install failed: ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}"
                        "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix" RESULT_VARIABLE result)
if(result)
    message(FATAL_ERROR "find_package(Streaming) failed: ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK_DIR}/build" RESULT_VARIABLE result)
if(result)
    message(FATAL_ERROR "the consumer did not build: ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${WORK_DIR}/prefix/lib"
                        "${WORK_DIR}/build/consumer" RESULT_VARIABLE result)
if(result)
    message(FATAL_ERROR "the consumer failed: ${result}")
endif()
# The installed console finds its translations beside itself, away from the build tree.
if(EXISTS "${WORK_DIR}/prefix/bin/quillon")
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${WORK_DIR}/prefix/lib"
                            QT_QPA_PLATFORM=offscreen LANG=C "${WORK_DIR}/prefix/bin/quillon" --lang de --help
                    RESULT_VARIABLE result OUTPUT_VARIABLE help ERROR_QUIET)
    if(result OR NOT help MATCHES "Quillon-Ausgabekonsole")
        message(FATAL_ERROR "the installed console did not show its German texts (${result}):\n${help}")
    endif()
endif()
message(STATUS "find_package(Streaming) consumer built and ran")
