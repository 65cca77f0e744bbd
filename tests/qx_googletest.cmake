# GoogleTest: the installed package, or for cross builds its sources as Debian ships them.
if(CMAKE_CROSSCOMPILING)
    set(QX_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "Sources of GoogleTest")
    set(INSTALL_GTEST OFF CACHE BOOL "")
    add_subdirectory(${QX_GOOGLETEST_SOURCE} googletest EXCLUDE_FROM_ALL SYSTEM)
    foreach(_library gtest gtest_main gmock gmock_main)
        if(NOT TARGET GTest::${_library})
            add_library(GTest::${_library} ALIAS ${_library})
        endif()
    endforeach()
else()
    find_package(GTest REQUIRED)
    # The package was compiled for an older C++ and leaves members of std::string to the runtime.
    # Named first, the runtime provides them; otherwise a member of our archives that happens to
    # contain one is linked, also where a test has a double in its place.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        set_property(TARGET GTest::gtest APPEND PROPERTY INTERFACE_LINK_OPTIONS
            "LINKER:--push-state,--no-as-needed,-lstdc++,--pop-state")
    endif()
endif()
