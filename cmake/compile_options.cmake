# qx_compile_options(target): what every target of this project is compiled with.

add_library(qx_options INTERFACE)
target_compile_features(qx_options INTERFACE cxx_std_20)
if(MSVC)
    target_compile_options(qx_options INTERFACE /W4 /WX /permissive- /fp:precise)
else()
    target_compile_options(qx_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wformat=2 -Werror
        # Results are the same to the last bit in every build: nothing is fused or reordered.
        -ffp-contract=off -fno-fast-math
        # As with GCC, where -Wconversion leaves the sign alone in C++.
        $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
        -fvisibility=hidden)
endif()
if(WIN32)
    target_compile_definitions(qx_options INTERFACE
        WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
endif()
if(QX_SANITIZE)
    target_compile_options(qx_options INTERFACE
        -fsanitize=${QX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(qx_options INTERFACE -fsanitize=${QX_SANITIZE})
endif()

function(qx_compile_options target)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:qx_options>)
endfunction()
