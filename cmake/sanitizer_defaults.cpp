/// \file
/// What the sanitizers ask a program at its start. The environment still overrules every answer.

extern "C" {

const char* __asan_default_options();
const char* __ubsan_default_options();

const char* __asan_default_options() {
    return "detect_stack_use_after_return=1:check_initialization_order=1:strict_init_order=1:"
           "strict_string_checks=1";
}

const char* __ubsan_default_options() {
    return "print_stacktrace=1";
}
}
