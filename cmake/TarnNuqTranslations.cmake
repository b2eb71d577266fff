# Translations: Qt Linguist files compiled with lrelease and built into the target.
include_guard(GLOBAL)

find_package(Qt5 5.15 REQUIRED COMPONENTS Core)
# Looked up as a program: the package with lrelease alone is enough, no Linguist development files.
find_program(TARNNUQ_LRELEASE NAMES lrelease lrelease-qt5 HINTS /usr/lib/qt5/bin "${Qt5_DIR}/../../../qt5/bin" REQUIRED)

# tarnnuq_add_translations(<target> RESOURCE <name> FILES a_zh_CN.ts ...)
#
# The compiled files stand in the binary as :/translations/<file>.qm. In a static library the resource <name> has to
# be announced with Q_INIT_RESOURCE(<name>) before its use.
function(tarnnuq_add_translations target)
    cmake_parse_arguments(arg "" "RESOURCE" "FILES" ${ARGN})
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations")
    set(entries "")
    set(compiled "")
    foreach(file IN LISTS arg_FILES)
        get_filename_component(name "${file}" NAME_WE)
        add_custom_command(OUTPUT "${folder}/${name}.qm"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
            COMMAND "${TARNNUQ_LRELEASE}" -silent -removeidentical "${CMAKE_CURRENT_SOURCE_DIR}/${file}" -qm "${folder}/${name}.qm"
            DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${file}"
            VERBATIM)
        list(APPEND compiled "${folder}/${name}.qm")
        string(APPEND entries "    <file>${name}.qm</file>\n")
    endforeach()
    set(qrc "${folder}/${arg_RESOURCE}.qrc")
    file(CONFIGURE OUTPUT "${qrc}" CONTENT "<RCC>\n  <qresource prefix=\"/translations\">\n@entries@  </qresource>\n</RCC>\n" @ONLY)
    get_target_property(rcc Qt5::rcc LOCATION)
    add_custom_command(OUTPUT "${folder}/qrc_${arg_RESOURCE}.cpp"
        COMMAND "${rcc}" --name ${arg_RESOURCE} --output "${folder}/qrc_${arg_RESOURCE}.cpp" "${qrc}"
        DEPENDS "${qrc}" ${compiled}
        VERBATIM)
    target_sources(${target} PRIVATE "${folder}/qrc_${arg_RESOURCE}.cpp")
    set_source_files_properties("${folder}/qrc_${arg_RESOURCE}.cpp" PROPERTIES SKIP_AUTOMOC ON)
endfunction()
