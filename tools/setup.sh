# Sourced by ./run, ./test and .ci/run: installs the Debian packages that are missing.
# Says aloud what it is about to install, and asks for nothing when all is there.

packages_build=(build-essential cmake ninja-build qt6-base-dev qt6-translations-l10n libgl-dev
    libqcustomplot-dev libpugixml-dev libusb-1.0-0-dev pkg-config fonts-dejavu-core)
packages_test=(libgtest-dev libgmock-dev clang-format poppler-utils)
packages_bench=(libbenchmark-dev)

install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing and neither root nor sudo is at hand: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing Debian packages${as_root[0]:+ with sudo}: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# configure_and_build PRESET [TARGET...]: quiet when all is well, the whole story when it is not.
configure_and_build() {
    local preset=$1
    shift
    local log
    log=$(mktemp)
    echo "Configuring and building ($preset)..."
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log"
        return 1
    fi
    if ! cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1; then
        grep -vE '^\[[0-9]+/[0-9]+\] ' "$log"
        return 1
    fi
    rm -f "$log"
}
