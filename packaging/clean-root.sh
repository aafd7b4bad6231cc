# shellcheck shell=bash
# A bare Debian in the folder `root`, and ways to use it. Sourced, in namespaces of its own for mounts
# and processes.
: "${root:?}"
. scripts/virtual-display.sh

# The Debian archives that apt has here, as lines of a sources.list.
debian_sources() {
    # shellcheck disable=SC2016 # apt's own variables
    apt-get indextargets 'Created-By: Packages' 'Origin: Debian' \
        --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' | sort -u
}

# make_tar TAR: a bare system of this Debian, with what the trial itself needs: a session bus, and
# udev's engine and database.
make_tar() {
    local codename
    codename=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
    apt-config dump Acquire >"$1.conf"
    debian_sources | mmdebstrap --variant=minbase --format=tar --aptopt="$1.conf" \
        --include=dbus-daemon,udev "$codename" "$1.new" - >"$1.log" 2>&1 ||
        { cat "$1.log" >&2; fail "no bare system"; }
    mv "$1.new" "$1"
}

# open_root TAR: a fresh system in `root`, out of TAR, which is made when it is not there.
open_root() {
    [ -e "$1" ] || make_tar "$1"
    rm -rf --one-file-system "$root"
    mkdir -p "$root"
    tar --extract --file="$1" --directory="$root"
    mount -t proc proc "$root/proc"
    mount --rbind /sys "$root/sys"
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod +x "$root/usr/sbin/policy-rc.d"
    inside useradd --uid 47110 --create-home tester
}

# inside COMMAND...: runs it in the clean system, as root.
inside() {
    chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

# apt_inside ARGUMENTS...: apt-get in the clean system; recommended packages stay away.
apt_inside() {
    inside apt-get -q -y --no-install-recommends "$@"
}

# debs VERSION NAMES...: where hand_over has laid these packages.
debs() {
    printf "/packages/%s_$1.deb\n" "${@:2}"
}

# hand_over FOLDER VERSION OLD: lays the packages of FOLDER into the clean system's /packages, as
# NAME_VERSION.deb, and once more with an earlier version.
hand_over() {
    local deb name tree
    mkdir -p "$root/packages"
    for deb in "$1"/*.deb; do
        name=$(dpkg-deb -f "$deb" Package)
        case $name in *-dbgsym) continue ;; esac
        cp "$deb" "$root/packages/${name}_$2.deb"
        tree=$(mktemp -d)
        dpkg-deb -R "$deb" "$tree"
        sed -i "s/\b${2//./\\.}\b/$3/g" "$tree/DEBIAN/control"
        dpkg-deb --root-owner-group -b "$tree" "$root/packages/${name}_$3.deb" >/dev/null
        rm -rf "$tree"
    done
}

# install_dependencies DEBS...: what they depend on, by apt's own reckoning, and nothing of ours.
install_dependencies() {
    local plan
    apt_inside update && plan=$(apt_inside install --simulate "$@") || return
    awk '$1 == "Inst" && $2 !~ /krraid|kestrelraid/ { print $2 }' <<<"$plan" |
        inside xargs apt-get -q -y --no-install-recommends install
}

# photograph FILE SCRIPT: runs the shell script, which ends in the program, in the clean system as a
# user with a session bus and a display, writes a picture of the window and closes it. Fails when the
# session does not end well.
photograph() {
    local work status=0 pids=()
    work=$(mktemp -d)
    open_display "$work" 1024x768 || { kill "${pids[@]}"; return 1; }
    timeout 300 chroot --userspec=tester "$root" /usr/bin/env -i PATH=/usr/bin:/bin LANG=C.UTF-8 \
        HOME=/home/tester DISPLAY="$DISPLAY" dbus-run-session -- sh -c "$2" >"$work/out" 2>&1 &
    local session=$!
    look_and_close "$1" "$work/out" || { status=1; end_tester; }
    wait $session || status=1
    kill "${pids[@]}"
    # The emulator writes down its state when the bus has gone. What has ended but is not reaped yet
    # does not count.
    await "! pgrep --runstates D,R,S,T -u $(inside id -u tester) >/dev/null" ||
        { status=1; end_tester; }
    cat "$work/out"
    rm -rf "$work"
    return $status
}

# end_tester: ends what the clean system's user runs, in this namespace of processes.
end_tester() {
    local pids
    mapfile -t pids < <(pgrep -u "$(inside id -u tester)")
    [ ${#pids[@]} -eq 0 ] || kill "${pids[@]}"
}

# look_and_close FILE LOG: a picture of the program's window, when it listens and two looks at it are
# the same; then the key that closes it.
look_and_close() {
    local window
    window=$(shown_window "$2") || return 1
    settled_picture "$window" "$1" || return 1
    timeout 60 xdotool windowactivate --sync "$window" key ctrl+q
}
