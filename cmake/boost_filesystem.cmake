# Boost::filesystem, found where the machine has it for the system that is built for. Debian has none
# for Windows: when cross-building it is compiled from the sources that belong to the installed
# headers, as a static library.
#
#   QX_BOOST_FILESYSTEM_SOURCE   the folder libs/filesystem/src of Boost's sources; when empty,
#                                tools/setup/boost_source.sh fetches them

if(NOT (MINGW AND CMAKE_CROSSCOMPILING))
    find_package(Boost 1.74 REQUIRED COMPONENTS filesystem)
    return()
endif()

set(QX_BOOST_FILESYSTEM_SOURCE "" CACHE PATH "Sources of Boost.Filesystem")
set(_source ${QX_BOOST_FILESYSTEM_SOURCE})
if(NOT _source)
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tools/setup/boost_source.sh
        OUTPUT_VARIABLE _source OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()

# Of the folder with all of the machine's headers only Boost's may be seen: the others are those of
# another system.
set(_headers ${CMAKE_BINARY_DIR}/boost_headers)
file(MAKE_DIRECTORY ${_headers})
if(NOT EXISTS ${_headers}/boost)
    file(CREATE_LINK /usr/include/boost ${_headers}/boost SYMBOLIC)
endif()

add_library(qx_boost_filesystem STATIC
    ${_source}/codecvt_error_category.cpp
    ${_source}/directory.cpp
    ${_source}/exception.cpp
    ${_source}/operations.cpp
    ${_source}/path.cpp
    ${_source}/path_traits.cpp
    ${_source}/portability.cpp
    ${_source}/unique_path.cpp
    ${_source}/utf8_codecvt_facet.cpp
    ${_source}/windows_file_codecvt.cpp)
target_include_directories(qx_boost_filesystem SYSTEM PUBLIC ${_headers})
target_compile_definitions(qx_boost_filesystem
    PUBLIC BOOST_ALL_NO_LIB BOOST_FILESYSTEM_STATIC_LINK
    PRIVATE BOOST_FILESYSTEM_SOURCE _WIN32_WINNT=0x0601)
target_compile_options(qx_boost_filesystem PRIVATE -w)
target_link_libraries(qx_boost_filesystem PUBLIC bcrypt)
add_library(Boost::filesystem ALIAS qx_boost_filesystem)
