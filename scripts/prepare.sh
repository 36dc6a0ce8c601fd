# shellcheck shell=bash disable=SC2034 # the lists of packages are for those who source it
# Sourced by the scripts: sees to the Debian packages, and builds. What takes time says what it is doing.

window_packages=(fonts-dejavu-core libgit2-dev libgl-dev libtree-sitter-dev pkg-config qcoro-qt6-dev
    qml6-module-qt-labs-folderlistmodel qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-dialogs qml6-module-qtquick-layouts
    qml6-module-qtquick-templates qml6-module-qtquick-window qt6-declarative-dev qt6-declarative-dev-tools
    qt6-qpa-plugins qt6-svg-dev)
build_packages=(cmake g++ libarchive-dev libcmark-dev librsvg2-bin libssl-dev libyaml-cpp-dev ninja-build qt6-base-dev
    "${window_packages[@]}")
test_packages=("${build_packages[@]}" at-spi2-core bash-completion dbus libgtest-dev libx11-6 python3-gi
    qml6-module-qttest strace xvfb zsh)
sanitizer_packages=(clang-16 libclang-rt-16-dev)
package_packages=("${build_packages[@]}" dpkg-dev file)
benchmark_packages=("${build_packages[@]}" diffutils libbenchmark-dev openssl python3 rsync)

# Runs a command as root.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Runs a command of which a name tells the purpose. A terminal shows the name with the last line that the command has
# printed; elsewhere the name is printed, then the seconds it took. All that it printed is shown when it fails.
phase() {
    local name=$1 log start=$SECONDS status=0
    shift
    log=$(mktemp)
    if [ -t 2 ]; then
        "$@" 2>&1 </dev/null | tee "$log" | show_last_line "$name" || status=$?
        printf '\r\e[K' >&2
    else
        printf '%s … ' "$name" >&2
        "$@" >"$log" 2>&1 </dev/null || status=$?
    fi
    if [ "$status" -ne 0 ]; then
        printf '\n' >&2
        cat "$log" >&2
    elif [ -t 2 ]; then
        printf '%s : %d s\n' "$name" $((SECONDS - start)) >&2
    else
        printf '%d s\n' $((SECONDS - start)) >&2
    fi
    rm -f "$log"
    [ "$status" -eq 0 ] || exit "$status"
}

# Writes each line that it reads over the one before.
show_last_line() {
    local line text width
    width=$(tput cols 2>/dev/null || echo 80)
    while IFS= read -r line; do
        text="$1 : $line"
        printf '\r\e[K%s' "${text:0:width-1}" >&2
    done
}

# Installs those of the named packages that are missing, or says which to install.
require() {
    local missing=()
    if ! command -v dpkg-query >/dev/null; then
        if command -v cmake >/dev/null && command -v ninja >/dev/null && command -v c++ >/dev/null; then
            return # CMake says what else is missing
        fi
        echo "Installez d’abord l’équivalent de ces paquets Debian : $*" >&2
        exit 1
    fi
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if ! command -v apt-get >/dev/null || { [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; }; then
        echo "Installez d’abord ces paquets (noms Debian) : ${missing[*]}" >&2
        exit 1
    fi
    phase "Liste des paquets" as_root apt-get update -q
    phase "Installation de paquets" as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

missing_packages() {
    comm -23 <(printf '%s\n' "$@" | sort -u) \
        <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null | sed -n 's/ installed$//p' | sort -u)
}

# npm brings the typeface, the icons and the grammars; it need not be Debian's.
require_npm() {
    command -v npm >/dev/null || require npm
}

# Builds a preset: build PRESET [-DNAME=VALUE]… [TARGET]…
build() {
    local folder=build/$1 word options=() targets=()
    for word in "${@:2}"; do
        case $word in
        -D*) options+=("$word") ;;
        *) targets+=("$word") ;;
        esac
    done
    configure "$1" "${options[@]}"
    if ! ninja -C "$folder" -n "${targets[@]}" | tail -n 1 | grep -q "no work to do"; then
        phase "Construction" ninja -C "$folder" "${targets[@]}"
    fi
}

# Configures a preset: configure PRESET [-DNAME=VALUE]…
configure() {
    if ! is_configured "build/$1" "${@:2}"; then
        phase "Configuration" cmake --preset "$@"
        touch "build/$1/configured"
    fi
}

# Whether a build folder was configured with the presets as they are, and these options.
is_configured() {
    local folder=$1 option
    [ "$folder/configured" -nt CMakePresets.json ] || return 1
    for option in "${@:2}"; do
        option=${option#-D}
        grep -q "^${option%%=*}:[A-Z]*=${option#*=}$" "$folder/CMakeCache.txt" || return 1
    done
}
