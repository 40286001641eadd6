# Configuring and building. Sourced, not run.

# build_preset PRESET [TARGET...]: configures build/PRESET and builds the targets, or everything.
# Further cmake arguments are taken from the array CONFIGURE_ARGUMENTS, if it is set.
build_preset() {
    local preset=$1 targets=()
    shift
    [[ $# -gt 0 ]] && targets=(--target "$@")
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
    fi
    cmake --preset "$preset" --log-level=WARNING ${CONFIGURE_ARGUMENTS[@]+"${CONFIGURE_ARGUMENTS[@]}"}
    cmake --build --preset "$preset" "${targets[@]}"
}
