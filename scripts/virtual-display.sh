# shellcheck shell=bash
# A display that nobody sees, for pictures of the program's window. Sourced.

# await TEXT: waits until the shell command TEXT succeeds, a minute at most.
await() {
    timeout 60 sh -c "until $1; do sleep 0.1; done" || {
        echo "in vain for a minute: $1" >&2
        return 1
    }
}

# open_display FOLDER SIZE: a display of so many pixels with a window manager, which DISPLAY names
# from then on; its pipes are kept in FOLDER. What is to be ended afterwards is added to `pids`.
open_display() {
    local folder=$1 number
    mkfifo "$folder/display" "$folder/manager"
    Xvfb -displayfd 3 -screen 0 "$2x24" -nolisten tcp 3>"$folder/display" 2>/dev/null &
    pids+=($!)
    read -r number <"$folder/display" || { echo "no virtual display" >&2; return 1; }
    export DISPLAY=:$number
    # A window that is shown before the window manager serves might never be.
    manager=$folder/manager openbox --startup "sh -c 'echo serves >\"\$manager\"'" >/dev/null 2>&1 &
    pids+=($!)
    read -r -t 60 _ <>"$folder/manager" || { echo "no window manager" >&2; return 1; }
}

# shown_window LOG: the number of the program's window, once the program that writes LOG listens,
# which it does when its first reading is shown.
shown_window() {
    await "grep -q 'Starting run loop' '$1'" &&
        await "xdotool search --onlyvisible --name 'Kestrel RAID'"
}

# settled_picture WINDOW FILE: a picture of a window of which two looks are the same.
settled_picture() {
    local now last=''
    for _ in $(seq 60); do
        import -window "$1" "$2" || return 1
        now=$(identify -format '%#' "$2")
        [ "$now" != "$last" ] || return 0
        last=$now
        sleep 0.5
    done
    echo "the window does not settle" >&2
    return 1
}
