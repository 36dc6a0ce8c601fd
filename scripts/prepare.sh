# Sourced by the scripts at the root: sees to the Debian packages, and builds.

window_packages="fonts-dejavu-core libgit2-dev libgl-dev pkg-config qcoro-qt6-dev qml6-module-qtqml
    qml6-module-qtqml-models qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-layouts
    qml6-module-qtquick-templates qml6-module-qtquick-window qt6-declarative-dev qt6-declarative-dev-tools
    qt6-qpa-plugins qt6-svg-dev"
build_packages="cmake g++ librsvg2-bin ninja-build libssl-dev qt6-base-dev $window_packages"
test_packages="$build_packages at-spi2-core bash-completion dbus gir1.2-atspi-2.0 libgtest-dev libx11-6 python3-gi
    qml6-module-qttest strace xvfb zsh"
check_packages="$test_packages clang-format-14 clang-tidy-16 git libbenchmark-dev"
fuzz_packages="$build_packages clang-16 libclang-rt-16-dev"
package_packages="$build_packages dpkg-dev file"
benchmark_packages="$build_packages diffutils libbenchmark-dev openssl python3 rsync"

# Runs a command as root.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the named packages that are missing, or says which to install.
require() {
    local missing=() package
    if ! command -v dpkg-query >/dev/null; then
        if command -v cmake >/dev/null && command -v ninja >/dev/null && command -v c++ >/dev/null; then
            return # CMake says what else is missing
        fi
        echo "Installez d’abord l’équivalent de ces paquets Debian : $*" >&2
        exit 1
    fi
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if ! command -v apt-get >/dev/null || { [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; }; then
        echo "Installez d’abord ces paquets (noms Debian) : ${missing[*]}" >&2
        exit 1
    fi
    echo "Installation : ${missing[*]}" >&2
    as_root apt-get update -q >&2
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}" >&2
}

# npm brings the typeface and the icons; it need not be Debian's.
require_npm() {
    command -v npm >/dev/null || require npm
}

# Configures a preset and builds it; what it prints is shown only when it fails.
build_quietly() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! { cmake --preset "$preset" "$@" && cmake --build --preset "$preset"; } >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        exit 1
    fi
    rm -f "$log"
}
