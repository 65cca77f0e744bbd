# The language table and what goes into the library with it, made from the translators' source.
#   qx_language_table       target: the table, in the folder where the build puts the library
#   QX_LANGUAGE_TABLE       its path
#   QX_GENERATED            folder with built_in_strings.rc, built_in_strings.inc and version.h
#   QX_RESOURCE_FILES       what the resource script of the library is made of besides itself

find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
set(_resources ${PROJECT_SOURCE_DIR}/resources)
set(_generator ${PROJECT_SOURCE_DIR}/tools/language_table.py)
set(QX_GENERATED ${CMAKE_CURRENT_BINARY_DIR}/generated)

get_property(_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
set(QX_LANGUAGE_TABLE ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
if(_multi_config)
    string(APPEND QX_LANGUAGE_TABLE /$<CONFIG>)
endif()
string(APPEND QX_LANGUAGE_TABLE /QXUTILITY_LANGUAGE_c.DAT)

configure_file(${_resources}/version.h.in ${QX_GENERATED}/version.h)
add_custom_command(
    OUTPUT ${QX_LANGUAGE_TABLE} ${QX_GENERATED}/built_in_strings.rc
           ${QX_GENERATED}/built_in_strings.inc
    COMMAND ${Python3_EXECUTABLE} ${_generator} ${_resources}/language/strings.toml
            --table ${QX_LANGUAGE_TABLE} --rc ${QX_GENERATED}/built_in_strings.rc
            --cpp ${QX_GENERATED}/built_in_strings.inc
    DEPENDS ${_generator} ${_resources}/language/strings.toml
    COMMENT "Language table"
    VERBATIM)
add_custom_target(qx_language_table ALL DEPENDS ${QX_LANGUAGE_TABLE})

set(QX_RESOURCE_FILES ${QX_GENERATED}/built_in_strings.rc ${QX_GENERATED}/version.h
    ${_resources}/common_controls.manifest ${_resources}/dialogs.rc
    ${_resources}/folder.bmp)
