# Warnings, sanitizers and the compiler cache, carried by one interface target that every module links.
add_library(compiler_settings INTERFACE)
target_compile_options(compiler_settings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual)

if(LYREBROOK_SANITIZE)
    target_compile_options(compiler_settings INTERFACE
        -fsanitize=${LYREBROOK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(compiler_settings INTERFACE -fsanitize=${LYREBROOK_SANITIZE})
endif()
target_compile_definitions(compiler_settings INTERFACE
    $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS> QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)

find_program(ccache_program ccache)
if(ccache_program AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ccache_program})
endif()
