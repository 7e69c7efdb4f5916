# The name under which a module of pkg-config is found: ours, so that a consumer who looks for the same one is left alone.
# The package file reads this too, when it is installed.
function(lumtex_module_prefix module variable)
    string(MAKE_C_IDENTIFIER "LUMTEX_${module}" prefix)
    string(TOUPPER "${prefix}" prefix)
    set(${variable} ${prefix} PARENT_SCOPE)
endfunction()

# lumtex_module_targets(<variable> <module>...): the targets to link, which must be found.
function(lumtex_module_targets variable)
    set(targets "")
    foreach(module IN LISTS ARGN)
        lumtex_module_prefix(${module} prefix)
        pkg_check_modules(${prefix} REQUIRED IMPORTED_TARGET ${module})
        list(APPEND targets PkgConfig::${prefix})
    endforeach()
    set(${variable} ${targets} PARENT_SCOPE)
endfunction()
