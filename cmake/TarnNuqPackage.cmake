# What is installed for others to build with: CMake packages, version files and pkg-config files.
#
# Two packages, because a real host brings the second one itself:
#   TarnNuq         TarnNuq::Core, TarnNuq::Service, and through the other package TarnNuq::HostSdk
#   TarnNuqHostSdk  TarnNuq::HostSdk
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)

set(TARNNUQ_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake")
set(TARNNUQ_PC_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
# The pkg-config files find everything from where they stand, so that an installed tree can be moved.
file(RELATIVE_PATH TARNNUQ_PREFIX_FROM_PC "/prefix/${TARNNUQ_PC_DIR}" "/prefix")
string(REGEX REPLACE "/$" "" TARNNUQ_PREFIX_FROM_PC "${TARNNUQ_PREFIX_FROM_PC}")

function(tarnnuq_install_package name)
    set(folder "${TARNNUQ_CMAKE_DIR}/${name}")
    set(generated "${PROJECT_BINARY_DIR}/packaging")
    configure_package_config_file("${PROJECT_SOURCE_DIR}/packaging/cmake/${name}Config.cmake.in"
        "${generated}/${name}Config.cmake" INSTALL_DESTINATION "${folder}")
    write_basic_package_version_file("${generated}/${name}ConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
    install(FILES "${generated}/${name}Config.cmake" "${generated}/${name}ConfigVersion.cmake"
        DESTINATION "${folder}" COMPONENT sdk)
    install(EXPORT ${name}Targets NAMESPACE TarnNuq:: DESTINATION "${folder}" COMPONENT sdk)
endfunction()

function(tarnnuq_install_pkgconfig name)
    configure_file("${PROJECT_SOURCE_DIR}/packaging/pkgconfig/${name}.pc.in"
        "${PROJECT_BINARY_DIR}/packaging/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/packaging/${name}.pc" DESTINATION "${TARNNUQ_PC_DIR}" COMPONENT sdk)
endfunction()

# Only a real host knows whether its SDK has a pkg-config file, and what it is called.
set(TARNNUQ_PC_HOST_SDK "")
if(NOT TARNNUQ_HOST_SDK)
    set(TARNNUQ_PC_HOST_SDK "tarnnuq-host-sdk = ${PROJECT_VERSION}, ")
endif()

if("HostSdk" IN_LIST TARNNUQ_ROOMS)
    tarnnuq_install_package(TarnNuqHostSdk)
    tarnnuq_install_pkgconfig(tarnnuq-host-sdk)
endif()
if("TarnNuqCore" IN_LIST TARNNUQ_ROOMS AND "TarnNuqService" IN_LIST TARNNUQ_ROOMS)
    tarnnuq_install_package(TarnNuq)
    tarnnuq_install_pkgconfig(tarnnuq-core)
    tarnnuq_install_pkgconfig(tarnnuq-service)
endif()
