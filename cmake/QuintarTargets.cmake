# Settings that all of the project's targets share, and the places where they are put.
include(GNUInstallDirs)

# The program, the plug-in and the library file find each other by this one relative layout, the same in the
# build tree and after installation.
set(QUINTAR_BIN_DIR bin)
set(QUINTAR_MODULE_DIR lib/quintar)
set(QUINTAR_BUILD_BIN_DIR "${PROJECT_BINARY_DIR}/${QUINTAR_BIN_DIR}")
set(QUINTAR_BUILD_MODULE_DIR "${PROJECT_BINARY_DIR}/${QUINTAR_MODULE_DIR}")

# Applies language level, warnings, visibility and sanitizers to a target.
function(quintar_target name)
    target_compile_features(${name} PUBLIC cxx_std_20)
    set_target_properties(${name} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${name} PRIVATE -Wall -Wextra $<$<BOOL:${QUINTAR_WERROR}>:-Werror>)
    # GCC 12 sees overlaps in inlined string additions that cannot be (its bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(${name} PRIVATE -Wno-restrict)
    endif()
    if(QUINTAR_SANITIZE)
        target_compile_options(${name} PRIVATE -fsanitize=${QUINTAR_SANITIZE} -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        target_link_options(${name} PRIVATE -fsanitize=${QUINTAR_SANITIZE})
    endif()
    if(QUINTAR_COVERAGE)
        target_compile_options(${name} PRIVATE --coverage)
        target_link_options(${name} PRIVATE --coverage)
    endif()
endfunction()

# Lets a module export the symbols of a version script and nothing else.
function(quintar_exports name script)
    target_link_options(${name} PRIVATE "LINKER:--version-script=${script}")
    set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()
