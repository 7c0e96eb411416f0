# Sourced by ./run, ./test and .ci/run: installs the Debian packages that are missing.
# Says aloud what it is about to install, and asks for nothing when all is there.

packages_build=(build-essential cmake ninja-build qt6-base-dev qt6-translations-l10n libgl-dev
    libqcustomplot-dev libpugixml-dev libusb-1.0-0-dev pkg-config fonts-dejavu-core)
packages_test=(libgtest-dev libgmock-dev clang-format poppler-utils umockdev libumockdev-dev)
packages_kernel=(qemu-system-x86 kmod busybox-static udev) # see tests/usb_kernel/prepare
packages_bench=(libbenchmark-dev umockdev libumockdev-dev)

# as_root COMMAND...: runs it with root's rights, through sudo where need be.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Neither root nor sudo is at hand for: $*" >&2
        return 1
    fi
}

install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing Debian packages: ${missing[*]}"
    as_root apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive \
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
