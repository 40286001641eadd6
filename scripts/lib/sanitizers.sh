# How the sanitizers are run, which programs built without them ignore. Sourced, not run.

# Fonts and themes that Qt's platform plug-ins load once and never release are not ours to free.
export LSAN_OPTIONS="suppressions=$root/tests/leaks.supp:print_suppressions=0"
# Without the slow unwinder the stacks end where Qt begins, and no suppression matches.
export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1:fast_unwind_on_malloc=0:malloc_context_size=10
export TSAN_OPTIONS="suppressions=$root/tests/threads.supp"
export UBSAN_OPTIONS=print_stacktrace=1
