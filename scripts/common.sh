# What the scripts share. Sourced, with the project's root as working folder.

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# Runs a command as root: directly, or through sudo after asking.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
        return
    fi
    command -v sudo >/dev/null || fail "run this as root once, or install: ${missing[*]}"
    if [ -t 0 ]; then
        read -r -p "Run as root: $* ? [y/N] " answer
        [ "$answer" = y ] || fail "not installed: ${missing[*]}"
    fi
    sudo "$@"
}

# install PACKAGES...: installs those that are missing.
install() {
    missing=()
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    as_root apt-get update -q >/dev/null
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# build PRESET [TARGETS...]
build() {
    local preset=$1
    shift
    cmake --preset "$preset" >"build/$preset-configure.log" 2>&1 ||
        { cat "build/$preset-configure.log" >&2; fail "preset '$preset' does not configure"; }
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
