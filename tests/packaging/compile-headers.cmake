# Compiles every installed public header alone with one compiler.
#
#   cmake -DSOURCE=<headers project> -DFOLDER=<its build folder> -DPREFIX=<installed tree> -DCOMPILER=<compiler>
#         -DLAUNCHER=<compiler launcher or nothing> -P compile-headers.cmake
execute_process(
    COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${FOLDER}" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=
        "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
        "-DCMAKE_PREFIX_PATH=${PREFIX}" "-DHEADER_ROOT=${PREFIX}/include/tarnnuq"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
