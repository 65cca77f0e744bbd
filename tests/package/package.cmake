# Tests of what is handed out: the headers, the library file, the installed package; and checks of
# the whole source tree, which run once, in the build for Linux.

# Every public header compiles by itself, and twice.
file(GLOB_RECURSE _headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/include
    ${PROJECT_SOURCE_DIR}/include/qxutility/*.h)
foreach(_header IN LISTS _headers)
    set(_source ${CMAKE_CURRENT_BINARY_DIR}/headers/${_header}.cpp)
    file(CONFIGURE OUTPUT ${_source}
        CONTENT "#include <${_header}>\n#include <${_header}>  // NOLINT\n")
    list(APPEND _header_sources ${_source})
endforeach()
add_library(public_headers OBJECT ${_header_sources})
target_link_libraries(public_headers PRIVATE QXUtility::qxutility)
qx_compile_options(public_headers)

# A stranger's project, for each build whose programs a stranger could run as they are.
if(NOT QX_SANITIZE)
    add_test(NAME package_consumer
        COMMAND ${CMAKE_COMMAND} -D BUILD=${CMAKE_BINARY_DIR} -D WORK=${CMAKE_BINARY_DIR}/package_test
                -D TOOLCHAIN=${CMAKE_TOOLCHAIN_FILE} -D GENERATOR=${CMAKE_GENERATOR}
                -P ${CMAKE_CURRENT_LIST_DIR}/consumer_test.cmake)
    set_tests_properties(package_consumer PROPERTIES TIMEOUT 300)
endif()

find_program(QX_CXXFILT NAMES c++filt)
set(_export_list ${PROJECT_SOURCE_DIR}/src/dll/exports_linux.txt)
set(_export_tool ${CMAKE_NM})
if(WIN32)
    set(_export_list ${PROJECT_SOURCE_DIR}/src/dll/exports_windows.txt)
    set(_export_tool ${CMAKE_OBJDUMP})
    add_test(NAME import_table COMMAND ${Python3_EXECUTABLE}
        ${CMAKE_CURRENT_LIST_DIR}/import_table.py ${CMAKE_OBJDUMP} $<TARGET_FILE:qxutility>)
endif()
if(QX_CXXFILT AND NOT MSVC AND NOT QX_SANITIZE)
    set(_exports ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/exports.py
        $<TARGET_FILE:qxutility> ${_export_list} ${_export_tool} ${QX_CXXFILT})
    add_test(NAME exported_names COMMAND ${_exports})
    add_custom_target(update_exports COMMAND ${_exports} --update VERBATIM)
    add_dependencies(update_exports qxutility)
endif()

if(NOT CMAKE_CROSSCOMPILING AND NOT QX_SANITIZE)
    add_test(NAME language_table_generator
        COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/tools/language_table_test.py)
    set(_checks ${PROJECT_SOURCE_DIR}/tools/checks)
    add_test(NAME check_os_conditionals COMMAND ${_checks}/os_conditionals.sh)
    add_test(NAME check_format COMMAND ${_checks}/format.sh)
    add_test(NAME check_tidy COMMAND ${_checks}/tidy.sh ${CMAKE_BINARY_DIR})
    set_tests_properties(check_format check_tidy PROPERTIES SKIP_RETURN_CODE 77)
    set_tests_properties(check_tidy PROPERTIES TIMEOUT 1500 PROCESSORS 2 COST 1000)
elseif(MINGW AND CMAKE_CROSSCOMPILING AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_test(NAME check_tidy
        COMMAND ${PROJECT_SOURCE_DIR}/tools/checks/tidy.sh ${CMAKE_BINARY_DIR})
    set_tests_properties(check_tidy PROPERTIES
        SKIP_RETURN_CODE 77 TIMEOUT 1500 PROCESSORS 2 COST 1000)
endif()
