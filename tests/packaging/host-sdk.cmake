# Configures this source tree against the SDK of another host and builds what is left of it then.
#
#   cmake -DSOURCE=<source tree> -DFOLDER=<build folder> -DHOST_SDK=<installed tree> -DCOMPILER=<compiler>
#         -P host-sdk.cmake
execute_process(
    COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${FOLDER}" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=
        "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DTARNNUQ_HOST_SDK=${HOST_SDK}" -DCMAKE_INSTALL_PREFIX=/installed
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)

file(GLOB host_libraries "${FOLDER}/lib/libHostSdk*")
if(host_libraries)
    message(FATAL_ERROR "A HostSdk was built although the host brings its own: ${host_libraries}")
endif()
if(NOT EXISTS "${FOLDER}/lib/libTarnNuqService.so")
    message(FATAL_ERROR "No libTarnNuqService.so was built in ${FOLDER}/lib")
endif()
