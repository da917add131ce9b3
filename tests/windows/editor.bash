# What drives the editor under Wine: to be sourced by the scripts beside it. They need a screen with a window manager, and
# a WINEPREFIX of their own.

wine=/usr/lib/wine/wine64
patience=90 # Seconds; what is waited for happens at once unless the machine is busy.
settings=$WINEPREFIX/drive_c/users/$(id -un)/AppData/Roaming/TorvaneBoundlessX64
file=$settings/Settings.ini

selector="Torvane - Please select your display type"
window="Torvane - Control Center"
fatal_error="Torvane - Fatal Error"
question="Settings Modification"

fail() {
    echo "Failed: $1" >&2
    import -window root "${SCREENSHOT:-/dev/null}" 2>/dev/null || true
    exit 1
}

# await WHAT COMMAND...: runs the command until it succeeds
await() {
    local what=$1 deadline=$((SECONDS + patience))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$deadline" ] || fail "$what: not within $patience seconds"
        sleep 0.1
    done
}

# start PROGRAM ARGUMENT...: leaves the number of its process in $process
start() {
    timeout -k 5 300 "$wine" "$@" </dev/null >/dev/null 2>&1 &
    process=$!
}

# ends_with CODE [PROCESS]: waits for the end of what has been started
ends_with() {
    local number=${2:-$process} result=0
    has_ended() { ! kill -0 "$number"; }
    await "The end of the program" has_ended
    wait "$number" || result=$?
    [ "$result" -eq "$1" ] || fail "exit code $result in place of $1"
}

# shows TITLE: waits for a window, which may be a regular expression, to have the keyboard; leaves its number in $shown
shows() {
    has_window() {
        shown=$(xdotool getactivewindow) && xdotool search --onlyvisible --name "^$1\$" | grep -qx "$shown"
    }
    await "The window \"$1\"" has_window "$1"
    rests() {
        import -window "$shown" "rgba:$WINEPREFIX/before"
        sleep 0.4
        import -window "$shown" "rgba:$WINEPREFIX/now"
        cmp "$WINEPREFIX/before" "$WINEPREFIX/now"
    }
    await "A still picture of \"$1\"" rests
}

# click X Y [KEY...]: clicks into the window that is shown, and presses keys
click() {
    xdotool mousemove --window "$shown" "$1" "$2" click 1
    shift 2
    [ $# -eq 0 ] || xdotool key "$@"
}

close_window() { click 785 15; }

# holds LINE...: whether the settings file has these lines
holds() {
    local line
    for line in "$@"; do
        tr -d '\r' <"$file" | grep -qxF "$line" || return 1
    done
}

# store TEXT: becomes the settings file, in a folder that holds nothing else
store() {
    rm -rf "$settings"
    mkdir -p "$settings"
    printf '%b' "$1" >"$file"
}
