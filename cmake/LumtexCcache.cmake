# Compiles through ccache where it is installed. The settings travel with the launcher, so that a build started
# by an editor hits the same cache as one started by a script.
find_program(LUMTEX_CCACHE ccache)
mark_as_advanced(LUMTEX_CCACHE)
if(LUMTEX_CCACHE AND (NOT CMAKE_CXX_COMPILER_LAUNCHER OR CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$"))
    # Without the first, ccache refuses every file that uses a precompiled header; with the second, what one
    # clone compiled serves all others.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env
        "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}"
        "${LUMTEX_CCACHE}")
endif()
