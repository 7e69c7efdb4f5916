# Debian packages, by `cpack`: one for each component of the installation. Development is what C++ users build with.
include(GNUInstallDirs)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "Lumtex")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${LUMTEX_LINK}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "owner-drawn, multi-column list view for C++")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_COMPONENTS_ALL Development)
if(LUMTEX_BUILD_QT)
    list(APPEND CPACK_COMPONENTS_ALL Qt)
endif()
if(LUMTEX_BUILD_DESIGNER)
    list(APPEND CPACK_COMPONENTS_ALL Designer)
endif()
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "LumtexListView packages <packages@lumtex.example>")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Static libraries: nothing in the package says what it links, so that is said here. What only an optional component needs
# is recommended.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblumtexlistview-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "libfreetype-dev, libharfbuzz-dev, libfribidi-dev, libfontconfig-dev, libgdk-pixbuf-2.0-dev, pkg-config")
if(LUMTEX_BUILD_QT)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
           ", liblumtexlistview-qt6 (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(recommended "")
if(LUMTEX_BUILD_JSON)
    list(APPEND recommended libglib2.0-dev)
endif()
if(LUMTEX_BUILD_DATABASE)
    list(APPEND recommended libsqlite3-dev libpq-dev)
endif()
if(LUMTEX_BUILD_QT)
    list(APPEND recommended qt6-base-dev)
endif()
list(JOIN recommended ", " CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Columns and rows in three colour schemes or in colours of your own, with
fonts, colours, icons, check marks and embedded controls per cell, headers,
scroll bars and an in-place editor of its own; sorts, searches, and saves its
content.
.
This package has the headers and static libraries, with files for CMake and
pkg-config.")

# The shared library says itself what it links.
set(CPACK_DEBIAN_QT_PACKAGE_NAME liblumtexlistview-qt6)
set(CPACK_DEBIAN_QT_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_QT_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_QT_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_COMPONENT_QT_DESCRIPTION
    "A widget that shows columns and rows in three colour schemes or in colours of
your own, with fonts, colours, icons, check marks and embedded widgets per
cell.
.
This package has the shared library, which programs need that were built
with it.")

# The library of the package above is not installed while this one is packed, so that dependency is said here.
set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME liblumtexlistview-qt6-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS
    "liblumtexlistview-qt6 (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION
    "A plugin that shows the widget LumtexListView in the form editor of Qt 6, with
its properties under headings, and that makes it for programs that load forms.")

# lumtex_debian_documents(<package> <component> [PARTS...]): what a Debian package says of itself. PARTS are packages whose
# code is compiled into its libraries. What a shared library has of the compiler's own, that one's exception leaves free.
function(lumtex_debian_documents package component)
    set(changes "${PROJECT_BINARY_DIR}/package/${package}.changes")
    configure_file("${PROJECT_SOURCE_DIR}/packaging/debian-changelog.in" "${changes}" @ONLY)
    # The same tree gives the same file: without name and time.
    execute_process(COMMAND gzip -9nc "${changes}" OUTPUT_FILE "${changes}.gz" COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${changes}.gz" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" RENAME changelog.Debian.gz
            COMPONENT ${component})
    file(READ "${PROJECT_SOURCE_DIR}/LICENSE" copyright)
    foreach(part IN LISTS ARGN)
        # Other systems install, too, and pack nothing.
        if(NOT EXISTS "/usr/share/doc/${part}/copyright")
            continue()
        endif()
        file(READ "/usr/share/doc/${part}/copyright" notice)
        string(APPEND copyright "\nThe libraries of this package have code of ${part} in them, whose notice is:\n\n${notice}")
    endforeach()
    set(copyright_file "${PROJECT_BINARY_DIR}/package/${package}.copyright")
    file(WRITE "${copyright_file}" "${copyright}")
    install(FILES "${copyright_file}" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" RENAME copyright
            COMPONENT ${component})
endfunction()
set(compiled_in "")
if(LUMTEX_BUILD_JSON)
    set(compiled_in nlohmann-json3-dev)
endif()
lumtex_debian_documents(liblumtexlistview-dev Development ${compiled_in})
if(LUMTEX_BUILD_QT)
    lumtex_debian_documents(liblumtexlistview-qt6 Qt)
endif()
if(LUMTEX_BUILD_DESIGNER)
    lumtex_debian_documents(liblumtexlistview-qt6-designer Designer)
endif()

include(CPack)
