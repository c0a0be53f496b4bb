# Sourced by ./run, ./test, .ci/run and tests/long.sh: installs the Debian packages that are missing, and only those.
# "a|b" names alternatives; the first one that this release of Debian or Ubuntu has is taken.

norvane_build_packages=(g++ cmake ninja-build ccache qt6-base-dev "qt6-svg-dev|libqt6svg6-dev" fonts-dejavu-core)
norvane_build_packages+=(qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools) # the translations
norvane_test_packages=(libgtest-dev poppler-utils bindfs)
norvane_test_packages+=(desktop-file-utils appstream man-db bsdextrautils lintian dpkg-dev file) # the package
norvane_lint_packages=(clang-format clang-tidy)
norvane_fuzz_packages=(clang "libclang-rt-dev|libclang-rt-14-dev") # libFuzzer is in the second
norvane_long_packages=("${norvane_fuzz_packages[@]}" strace)
norvane_windows_packages=("g++-mingw-w64-x86-64-posix|g++-mingw-w64-x86-64")
norvane_reader_packages=(libdbd-xbase-perl gdal-bin) # programs that are not ours and read tables

package_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# The names still to be installed, one a line. Alternatives stay joined.
missing_packages() {
    local wanted name present
    for wanted in "$@"; do
        present=no
        for name in ${wanted//|/ }; do
            package_installed "$name" && present=yes
        done
        [ $present = yes ] || echo "$wanted"
    done
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

install_packages() {
    local missing chosen=() wanted name
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        command -v cmake >/dev/null && return 0 # another system whose owner has set it up
        echo "This is no Debian or Ubuntu system. Please install a C++20 compiler, CMake, Ninja, Qt 6.4 or" >&2
        echo "newer (base, svg and Linguist tools) and GoogleTest by its own means, then start this again." >&2
        return 1
    fi
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        echo "These packages are missing: ${missing[*]}" >&2
        echo "They can only be installed as root, and there is no sudo here. Please run as root:" >&2
        echo "    apt-get install ${missing[*]%%|*}" >&2
        return 1
    fi
    echo "Installing packages: ${missing[*]}"
    as_root apt-get -q update || return 1
    for wanted in "${missing[@]}"; do
        for name in ${wanted//|/ }; do
            if [ -n "$(apt-cache madison "$name" 2>/dev/null)" ]; then
                chosen+=("$name")
                break
            fi
        done
    done
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${chosen[@]}" || return 1
    mapfile -t missing < <(missing_packages "$@")
    if [ ${#missing[@]} -gt 0 ]; then
        echo "Could not install: ${missing[*]}" >&2
        return 1
    fi
}

# build_preset NAME: configures once, then builds what changed.
build_preset() {
    if [ ! -f "build/$1/build.ninja" ]; then
        cmake --preset "$1" || return 1
    fi
    cmake --build "build/$1" --parallel
}
