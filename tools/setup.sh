# Sourced by ./run, ./test and .ci/run: installs the Debian packages that are missing.
# Says aloud what it is about to install, and asks for nothing when all is there.

packages_build=(build-essential cmake ninja-build qt6-base-dev qt6-translations-l10n libgl-dev
    libqcustomplot-dev libpugixml-dev libusb-1.0-0-dev pkg-config fonts-dejavu-core)
packages_test=(libgtest-dev libgmock-dev poppler-utils umockdev libumockdev-dev)
packages_check=(clang-format clang-tidy)
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

# told WHAT: reads what a build or a test run prints and says how far it is: a line that counts on a
# terminal, a line a minute elsewhere. How long is left is not known, so it is not said.
told() {
    local what=$1 line done_='' started=$SECONDS said=0
    while :; do
        if IFS= read -r -t 5 line; then
            [[ $line =~ ([0-9]+)/([0-9]+)[]\ ] ]] && done_="${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
        elif [ $? -le 128 ]; then
            break
        fi
        if [ -t 1 ]; then
            printf '\r\033[K%s: %s, %d s' "$what" "${done_:-beginning}" $((SECONDS - started))
        elif [ $(((SECONDS - started) / 60)) -gt $said ]; then
            said=$(((SECONDS - started) / 60))
            echo "  $what: ${done_:-beginning} after $said min"
        fi
    done
    [ ! -t 1 ] || printf '\r\033[K'
    echo "$what: ${done_:-nothing to do}, $((SECONDS - started)) s"
}

# configure_and_build PRESET [TARGET...]: says how far it is, and the whole story when it fails.
configure_and_build() {
    local preset=$1
    shift
    local log
    log=$(mktemp)
    echo "Configuring ($preset)"
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log"
        return 1
    fi
    if ! cmake --build --preset "$preset" ${1:+--target "$@"} 2>&1 | tee "$log" |
        told "Building ($preset)"; then
        grep -vE '^\[[0-9]+/[0-9]+\] ' "$log"
        return 1
    fi
    rm -f "$log"
}

# run_tests PRESET [ARGUMENT...]: runs all tests, says how far it is, and shows what failed and the sums.
run_tests() {
    local preset=$1 log result=0
    shift
    log=$(mktemp)
    ctest --preset "$preset" "$@" 2>&1 | tee "$log" | told "Testing ($preset)" || result=1
    grep -vE '^ *(Start +[0-9]+: |[0-9]+/[0-9]+ Test +#[0-9]+: .* Passed )|^Test project ' "$log" |
        cat -s
    rm -f "$log"
    return $result
}
