# How this project declares its libraries, programs and tests.
include_guard(GLOBAL)
include(GenerateExportHeader)
include(GoogleTest)

# tarnnuq_add_shared_library(<target> ALIAS <TarnNuq::Name> SOURCES ... HEADERS ... LINK ... [PACKAGE <name>])
#
# An exported, installed shared library with hidden visibility. HEADERS are public and installed below
# include/tarnnuq with their folders; the export header <target>Export.h is generated. PACKAGE is the CMake package
# that brings it to others, by default TarnNuq (cmake/TarnNuqPackage.cmake).
function(tarnnuq_add_shared_library target)
    cmake_parse_arguments(arg "" "ALIAS;PACKAGE" "SOURCES;HEADERS;LINK" ${ARGN})
    if(NOT arg_PACKAGE)
        set(arg_PACKAGE TarnNuq)
    endif()
    add_library(${target} SHARED ${arg_SOURCES} ${arg_HEADERS})
    add_library(${arg_ALIAS} ALIAS ${target})
    string(REPLACE "TarnNuq::" "" export_name "${arg_ALIAS}")
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${export_name}
        VERSION ${PROJECT_VERSION}
        SOVERSION 0
        CXX_EXTENSIONS OFF
        # The build tree has the layout of an installation: no path is patched, and none padded with empty entries,
        # which a loader takes for the current folder.
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "$ORIGIN"
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    string(TOUPPER ${target} upper)
    generate_export_header(${target} BASE_NAME ${target} EXPORT_MACRO_NAME ${upper}_EXPORT
        EXPORT_FILE_NAME "${CMAKE_CURRENT_BINARY_DIR}/include/${target}Export.h")
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>"
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/include>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tarnnuq/${target}>")
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${arg_LINK} PRIVATE $<BUILD_INTERFACE:tarnnuq_build_settings>)

    install(TARGETS ${target} EXPORT ${arg_PACKAGE}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libraries NAMELINK_COMPONENT sdk
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT libraries
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT sdk)
    foreach(header IN LISTS arg_HEADERS)
        get_filename_component(folder "${header}" DIRECTORY)
        install(FILES "${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tarnnuq/${target}/${folder}"
            COMPONENT sdk)
    endforeach()
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/include/${target}Export.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tarnnuq/${target}" COMPONENT sdk)
    set_property(GLOBAL APPEND PROPERTY TARNNUQ_PUBLIC_LIBRARIES ${target})
endfunction()

# tarnnuq_add_static_library(<target> SOURCES ... LINK ... PRIVATE_LINK ...)
#
# A room's code as an internal library: its program stays thin and tests link the rest.
function(tarnnuq_add_static_library target)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(${target} STATIC ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${target} PUBLIC ${arg_LINK} PRIVATE ${arg_PRIVATE_LINK} tarnnuq_build_settings)
endfunction()

# tarnnuq_add_program(<name> SOURCES ... LINK ...)
#
# An installed program that finds the project's libraries in ../lib beside it.
function(tarnnuq_add_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "$ORIGIN/../lib;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
    target_link_libraries(${name} PRIVATE ${arg_LINK} tarnnuq_build_settings)
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
endfunction()

# tarnnuq_speed_up_test_build(<target>)
#
# Half of what a test's source costs the compiler is GoogleTest's headers and the optimisation of code that runs once.
# Other configurations and compilers do without, so that a source that does not include what it uses is still found.
function(tarnnuq_speed_up_test_build target)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU" OR NOT CMAKE_BUILD_TYPE STREQUAL "Release")
        return()
    endif()
    # ccache looks into the precompiled header only when the preprocessor names it.
    target_compile_options(${target} PRIVATE -O1 -fpch-preprocess)
    if(NOT TARGET TestHeaders)
        file(WRITE "${PROJECT_BINARY_DIR}/tests/TestHeaders.cpp" "int main() {}\n")
        add_executable(TestHeaders EXCLUDE_FROM_ALL "${PROJECT_BINARY_DIR}/tests/TestHeaders.cpp")
        set_target_properties(TestHeaders PROPERTIES CXX_EXTENSIONS OFF)
        target_compile_options(TestHeaders PRIVATE -O1 -fpch-preprocess)
        target_link_libraries(TestHeaders PRIVATE Qt5::Core GTest::gmock tarnnuq_build_settings)
        target_precompile_headers(TestHeaders PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
    endif()
    target_precompile_headers(${target} REUSE_FROM TestHeaders)
endfunction()

# tarnnuq_add_test(NAME <name> SOURCES ... LIBRARIES ... [ENVIRONMENT k=v ...] [TIMEOUT s])
#
# A GoogleTest program with the project's own main; each test case is a process of its own, because the
# services are singletons that read their files once.
function(tarnnuq_add_test)
    cmake_parse_arguments(arg "" "NAME;TIMEOUT" "SOURCES;LIBRARIES;ENVIRONMENT" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    add_executable(${arg_NAME} ${arg_SOURCES})
    set_target_properties(${arg_NAME} PROPERTIES CXX_EXTENSIONS OFF
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
    target_link_libraries(${arg_NAME} PRIVATE ${arg_LIBRARIES} TestMain GTest::gmock tarnnuq_build_settings)
    tarnnuq_speed_up_test_build(${arg_NAME})
    gtest_discover_tests(${arg_NAME}
        TEST_PREFIX "${arg_NAME}."
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        PROPERTIES
            TIMEOUT ${arg_TIMEOUT}
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC;${arg_ENVIRONMENT}")
endfunction()
