# Compiler flags and the helpers that declare a floor, a program and a test program.

add_library(kestrav_flags INTERFACE)
target_compile_options(kestrav_flags INTERFACE
    # The same input must give the same bytes whatever the instruction set.
    -ffp-contract=off
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wdouble-promotion -Wformat=2)
target_include_directories(kestrav_flags INTERFACE ${PROJECT_SOURCE_DIR})
if(KESTRAV_DEVELOPER)
    target_compile_options(kestrav_flags INTERFACE -Werror -UNDEBUG)
else()
    # A wrong format string is an error in every build.
    target_compile_options(kestrav_flags INTERFACE -Werror=format)
endif()
if(KESTRAV_SANITIZE)
    target_compile_options(kestrav_flags INTERFACE
        -fsanitize=${KESTRAV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kestrav_flags INTERFACE -fsanitize=${KESTRAV_SANITIZE})
    # The dispatch between instruction sets runs before the sanitizer is set up and crashes there.
    target_compile_definitions(kestrav_flags INTERFACE KESTRAV_NO_CLONES=1)
    # With a sanitizer's checks in between, GCC takes the functions inside <regex> for unset.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(kestrav_flags INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()

if(KESTRAV_FUZZ)
    # The floors are watched too, not only the fuzz targets themselves.
    target_compile_options(kestrav_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# kestrav_floor(NAME DEPENDS ...) declares the static library of one floor from the sources in
# the current folder. A floor may only depend on the floors below it.
function(kestrav_floor name)
    cmake_parse_arguments(FLOOR "" "" "DEPENDS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(kestrav_${name} STATIC ${sources})
    target_link_libraries(kestrav_${name} PUBLIC kestrav_flags ${FLOOR_DEPENDS})
    set_target_properties(kestrav_${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()
