# Which host the libraries are built against: the HostSdk of this tree, or the SDK of a real host.
include_guard(GLOBAL)

if(TARNNUQ_HOST_SDK)
    find_package(TarnNuqHostSdk CONFIG REQUIRED PATHS "${TARNNUQ_HOST_SDK}" NO_DEFAULT_PATH)
    if(NOT TARGET TarnNuq::HostSdk)
        message(FATAL_ERROR "The package TarnNuqHostSdk in ${TarnNuqHostSdk_DIR} has no target TarnNuq::HostSdk")
    endif()
    # Everything else installs a host of its own, which only the HostSdk of this tree lets it do.
    set(TARNNUQ_ROOMS TarnNuqCore TarnNuqService)
endif()
