# Installs the libraries of a build tree twice: once where they stay, once into a folder that is then moved, with a
# blank and a Chinese letter in its name.
#
#   cmake -DBUILD=<build tree> -DCONFIG=<build type> -DPREFIX=<stays> -DMOVED=<moved there> -P install-package.cmake
function(install_into prefix)
    foreach(component IN ITEMS libraries sdk)
        execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}"
            --prefix "${prefix}" --component ${component} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
endfunction()

file(REMOVE_RECURSE "${PREFIX}" "${MOVED}" "${PREFIX}-before-move")
install_into("${PREFIX}")
install_into("${PREFIX}-before-move")
file(RENAME "${PREFIX}-before-move" "${MOVED}")
