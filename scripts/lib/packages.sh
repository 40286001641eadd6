# Debian packages that the scripts need, and the way to get them. Sourced, not run.

# What building and running the viewer takes.
BUILD_PACKAGES=(
    g++
    cmake
    ninja-build
    qtbase5-dev
    qttools5-dev
    qttools5-dev-tools
    libqwt-qt5-dev
    qttranslations5-l10n
    fonts-dejavu-core
)

# What real cameras, in the viewer and in the tests, take besides.
GENICAM_PACKAGES=(
    libaravis-dev
    pkg-config
)

# What pictures in all languages take besides: the font for Japanese and Chinese.
PICTURE_PACKAGES=(
    fonts-noto-cjk
)

# What the tests and the format check take besides. The sanitizers' runtimes come with g++.
TEST_PACKAGES=(
    binutils
    clang-format-14
    xvfb
    xauth
)

# What the static checks take besides.
LINT_PACKAGES=(
    clang-tidy-14
    clazy
)

# What the benchmarks take besides building.
BENCH_PACKAGES=(
    libbenchmark-dev
    valgrind
    xvfb
    xauth
)

# What cross-building for Windows and running the result take. The compiler's C++ threads are the
# posix ones; moc, rcc and uic come out of the cross-built Qt, lrelease from the distribution's tools.
WINDOWS_PACKAGES=(
    g++-mingw-w64-x86-64-posix
    g++
    make
    perl
    patch
    dpkg-dev
    cmake
    ninja-build
    qttools5-dev
    qttools5-dev-tools
    qttranslations5-l10n
    wine64
    fonts-dejavu-core
    xvfb
    xauth
)

is_installed() {
    [[ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null)" == ii* ]]
}

# Runs a command as root: directly, or through sudo.
as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Lists age: when a package is not found, or is gone from the mirror, they are fetched anew, once.
apt_install() {
    local options=(-y --no-install-recommends -o DPkg::Lock::Timeout=120)
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install "${options[@]}" "$@" && return
    echo "Fetching the package lists." >&2
    as_root apt-get update || as_root apt-get update || return
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install "${options[@]}" "$@"
}

# require_packages PACKAGE...: installs those that are missing; ends the script if it cannot.
require_packages() {
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [[ ${#missing[@]} -eq 0 ]] && return

    if ! command -v apt-get >/dev/null; then
        echo "Missing: ${missing[*]}. Without apt-get, please install them by hand." >&2
        exit 1
    fi
    if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
        echo "Missing: ${missing[*]}. Please install them as root:" >&2
        echo "    apt-get install ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing ${missing[*]}."
    if ! apt_install "${missing[@]}"; then
        echo "These packages could not be installed: ${missing[*]}" >&2
        exit 1
    fi
}
