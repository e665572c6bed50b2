# What all targets share: flags, precompiled headers, and one function for each sort of target.

add_library(ivorel_flags INTERFACE)
target_include_directories(ivorel_flags INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(ivorel_flags INTERFACE -Wall -Wextra -Wpedantic)
target_compile_definitions(ivorel_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(IVOREL_WERROR)
    target_compile_options(ivorel_flags INTERFACE -Werror)
endif()
if(IVOREL_SANITIZE)
    target_compile_options(ivorel_flags INTERFACE
        -fsanitize=${IVOREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(ivorel_flags INTERFACE -fsanitize=${IVOREL_SANITIZE})
endif()

# ivorel_test(name SOURCES file… [LIBS target…] [DESKTOP]): one test program, run by ctest.
# Tests without DESKTOP share one precompiled header, so they all link the same libraries.
function(ivorel_test name)
    cmake_parse_arguments(arg "DESKTOP" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${arg_SOURCES} $<TARGET_OBJECTS:ivorel_test_apart>)
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(arg_DESKTOP)
        target_link_libraries(${name} PRIVATE ivorel_desktop ivorel_test_support Qt6::Test ${arg_LIBS})
    else()
        target_link_libraries(${name} PRIVATE ivorel_test_support ${arg_LIBS})
        target_precompile_headers(${name} REUSE_FROM ivorel_test_support)
    endif()
    target_compile_definitions(${name} PRIVATE
        IVOREL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data"
        IVOREL_CLI="$<TARGET_FILE:ivorel-cli>")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC" TIMEOUT 600)
endfunction()
