# lyrebrook_module(name SOURCES ... [LIBRARIES ...] [PRIVATE_LIBRARIES ...]): a static library with the house's settings.
# Includes are written from src/ on: "platform/sound/SoundEngine.h".
function(lyrebrook_module name)
    cmake_parse_arguments(MODULE "" "" "SOURCES;LIBRARIES;PRIVATE_LIBRARIES" ${ARGN})
    if(NOT MODULE_SOURCES)
        set(MODULE_SOURCES ${PROJECT_SOURCE_DIR}/cmake/empty.cpp)
    endif()
    add_library(${name} STATIC ${MODULE_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC compiler_settings ${MODULE_LIBRARIES} PRIVATE ${MODULE_PRIVATE_LIBRARIES})
endfunction()

# lyrebrook_test(name SOURCES ... LIBRARIES ... [LABELS ...]): one test program, one ctest entry.
function(lyrebrook_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${TEST_LIBRARIES} GTest::gmock)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-O0>)  # what is tested is optimised, the tests need not be
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        LABELS "${TEST_LABELS}" TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=1:abort_on_error=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# lyrebrook_precompile(name HEADERS ...): what nearly every source of a large target includes is parsed once.
function(lyrebrook_precompile name)
    target_precompile_headers(${name} PRIVATE <algorithm> <array> <functional> <memory> <string> <vector> ${ARGN})
endfunction()
