# The name under which a module of pkg-config is found: ours, so that a consumer who looks for the same one is left alone.
# The package file reads this too, when it is installed.
function(lumtex_module_prefix module variable)
    string(MAKE_C_IDENTIFIER "LUMTEX_${module}" prefix)
    string(TOUPPER "${prefix}" prefix)
    set(${variable} ${prefix} PARENT_SCOPE)
endfunction()
