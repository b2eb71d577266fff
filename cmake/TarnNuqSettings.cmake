# Settings that every target of the project shares, as one INTERFACE target.
include_guard(GLOBAL)

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(TARNNUQ_CCACHE ccache)
    if(TARNNUQ_CCACHE)
        # Without these a second checkout or build folder never finds what the first one compiled.
        set(CMAKE_CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=1
            CCACHE_SLOPPINESS=pch_defines,time_macros
            # What a source includes is read from the compiler's own list: a first build is spared a preprocessor run.
            CCACHE_DEPEND=1 "${TARNNUQ_CCACHE}")
    endif()
endif()

find_package(Qt5 5.15 REQUIRED COMPONENTS Core)

add_library(tarnnuq_build_settings INTERFACE)
target_compile_features(tarnnuq_build_settings INTERFACE cxx_std_17)
target_compile_definitions(tarnnuq_build_settings INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH)
if(MSVC)
    # 4251, 4275: exported classes hold standard and Qt types; host and library are built with one compiler.
    target_compile_options(tarnnuq_build_settings INTERFACE /W4 /utf-8 /wd4251 /wd4275 $<$<BOOL:${TARNNUQ_WERROR}>:/WX>)
else()
    target_compile_options(tarnnuq_build_settings INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${TARNNUQ_WERROR}>:-Werror>
        # The file names in debug warnings and assertions are the same on every machine.
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()

set(TARNNUQ_SANITIZE "" CACHE STRING "Sanitizers for -fsanitize=, for example address,undefined")
if(TARNNUQ_SANITIZE)
    # A report of undefined behaviour ends the program, so that no test can pass over it.
    add_compile_options(-fsanitize=${TARNNUQ_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TARNNUQ_SANITIZE})
endif()

option(TARNNUQ_COVERAGE "Count line coverage" OFF)
if(TARNNUQ_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
