# Settings that all of the project's targets share, and the places where they are put.
include(GNUInstallDirs)

# The program, the plug-in and the library file find each other by this one relative layout, the same in the
# build tree and after installation.
# Installed are "program", "window" and "development", each of which can be left out.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)
set(QUINTAR_BIN_DIR bin)
set(QUINTAR_MODULE_DIR lib/quintar)
set(QUINTAR_BUILD_BIN_DIR "${PROJECT_BINARY_DIR}/${QUINTAR_BIN_DIR}")
set(QUINTAR_BUILD_MODULE_DIR "${PROJECT_BINARY_DIR}/${QUINTAR_MODULE_DIR}")

set(QUINTAR_WARNINGS -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual)

# What makes mistakes in memory end a program rather than be of use to somebody, in what users run.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(QUINTAR_IS_RELEASE $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
set(QUINTAR_HARDENING -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i.86")
    list(APPEND QUINTAR_HARDENING -fcf-protection=full)
elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "aarch64|arm64")
    list(APPEND QUINTAR_HARDENING -mbranch-protection=standard)
endif()
if(NOT QUINTAR_SANITIZE)
    list(APPEND QUINTAR_HARDENING -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
endif()
set(QUINTAR_LINK_HARDENING LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)

# quintar_target(name)
# Applies language level, warnings, hardening, visibility and sanitizers to a target.
function(quintar_target name)
    target_compile_features(${name} PUBLIC cxx_std_20)
    set_target_properties(${name} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${name} PRIVATE ${QUINTAR_WARNINGS} $<$<BOOL:${QUINTAR_WERROR}>:-Werror>)
    target_compile_options(${name} PRIVATE "$<${QUINTAR_IS_RELEASE}:${QUINTAR_HARDENING}>")
    target_link_options(${name} PRIVATE "$<${QUINTAR_IS_RELEASE}:${QUINTAR_LINK_HARDENING}>")
    # GCC 12 sees overlaps in inlined string additions that cannot be (its bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(${name} PRIVATE -Wno-restrict)
    endif()
    if(QUINTAR_SANITIZE)
        target_compile_options(${name} PRIVATE -fsanitize=${QUINTAR_SANITIZE} -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        target_link_options(${name} PRIVATE -fsanitize=${QUINTAR_SANITIZE})
    endif()
    if(QUINTAR_FUZZ)
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    if(QUINTAR_COVERAGE)
        target_compile_options(${name} PRIVATE --coverage)
        target_link_options(${name} PRIVATE --coverage)
    endif()
endfunction()

# Has a program find the libraries that it needs where they are now, whatever LD_LIBRARY_PATH says: the older kind of run
# path comes first, and holds for modules and the libraries of libraries as well.
function(quintar_installed_libraries name)
    set(folders "")
    foreach(library IN ITEMS Qt5::Core Qt5::Widgets)
        get_target_property(location ${library} LOCATION)
        cmake_path(GET location PARENT_PATH folder)
        list(APPEND folders "${folder}")
    endforeach()
    foreach(package IN ITEMS QPDF LIBBSD SECCOMP FONTCONFIG)
        list(APPEND folders "${${package}_LIBDIR}")
    endforeach()
    list(REMOVE_DUPLICATES folders)
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "${folders}" BUILD_WITH_INSTALL_RPATH ON)
    target_link_options(${name} PRIVATE LINKER:--disable-new-dtags)
endfunction()

# Lets a module export the symbols of a version script and nothing else.
function(quintar_exports name script)
    target_link_options(${name} PRIVATE "LINKER:--version-script=${script}")
    set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# quintar_offer(target [HEADERS folder ...])
# Offers a library to other projects as quintar::<target>, in this tree and after installation alike. The headers of
# the folders, by their paths from the top, are installed, and found with those paths and by their bare names.
set(QUINTAR_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}/quintar")
set(QUINTAR_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/quintar")
function(quintar_offer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS")
    add_library(quintar::${name} ALIAS ${name})
    get_target_property(type ${name} TYPE)
    set(scope PUBLIC)
    if(type STREQUAL INTERFACE_LIBRARY)
        set(scope INTERFACE)
    endif()
    foreach(folder IN ITEMS "" ${arg_HEADERS})
        target_include_directories(${name} ${scope}
            "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/${folder}>"
            "$<INSTALL_INTERFACE:${QUINTAR_INCLUDE_DIR}/${folder}>")
    endforeach()
    foreach(folder IN LISTS arg_HEADERS)
        install(DIRECTORY "${PROJECT_SOURCE_DIR}/${folder}/" DESTINATION "${QUINTAR_INCLUDE_DIR}/${folder}"
            COMPONENT development FILES_MATCHING PATTERN "*.h" PATTERN "*.def")
    endforeach()
    install(TARGETS ${name} EXPORT quintarTargets COMPONENT development
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endfunction()

# Writes what find_package(quintar) reads, for the libraries that quintar_offer() has named.
function(quintar_install_package)
    include(CMakePackageConfigHelpers)
    set(version_file "${PROJECT_BINARY_DIR}/quintarConfigVersion.cmake")
    write_basic_package_version_file("${version_file}" COMPATIBILITY SameMinorVersion)
    install(EXPORT quintarTargets NAMESPACE quintar:: DESTINATION "${QUINTAR_PACKAGE_DIR}" COMPONENT development)
    install(FILES "${PROJECT_SOURCE_DIR}/cmake/quintarConfig.cmake" "${version_file}"
        DESTINATION "${QUINTAR_PACKAGE_DIR}" COMPONENT development)
endfunction()
