# What drives the editor as a user does, by mouse and keyboard: to be sourced. Needs a screen with a window manager. The
# programs are those for Windows where WINDOWS_TO_DRIVE names a Wine prefix of their own, whose settings may be lost.

patience=90 # Seconds; what is waited for happens at once unless the machine is busy.
on_windows() { [ -n "${WINDOWS_TO_DRIVE:-}" ]; }
if on_windows; then
    scratch=$WINDOWS_TO_DRIVE
    suffix=.exe
    launcher=(env "WINEPREFIX=$scratch" /usr/lib/wine/wine64)
    configuration=$scratch/drive_c/users/$(id -un)/AppData/Roaming
else
    scratch=$(mktemp -d)
    trap 'end_programs; rm -rf "$scratch"' EXIT
    suffix=
    home=$scratch/$(printf 'Gr\303\274\303\237e, \350\250\255\345\256\232 & <b>\360\237\231\202')
    configuration=$home/config
    mkdir -p "$configuration" "$home/runtime"
    chmod 700 "$home/runtime" # The single instance takes no folder that others can enter.
    # A user who has nothing but a home folder. What a sanitizer finds must not look like a first start.
    launcher=(env -i LC_ALL=C ASAN_OPTIONS=exitcode=99 "HOME=$home" "XDG_CONFIG_HOME=$configuration"
        "XDG_CACHE_HOME=$home/cache" "XDG_RUNTIME_DIR=$home/runtime")
    for variable in PATH DISPLAY LSAN_OPTIONS QT_XCB_GL_INTEGRATION DBUS_SESSION_BUS_ADDRESS; do
        [ -z "${!variable:-}" ] || launcher+=("$variable=${!variable}")
    done
fi
settings=$configuration/TorvaneBoundlessX64
file=$settings/Settings.ini
output=$scratch/output

selector="Torvane - Please select your display type"
window="Torvane - Control Center"
fatal_error="Torvane - Fatal Error"
question="Settings Modification"

end_programs() {
    # shellcheck disable=SC2046 # A number each.
    kill $(jobs -pr) 2>/dev/null || true
    wait
}

fail() {
    tail -n 50 "$output" >&2 || true
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
    timeout -k 5 300 "${launcher[@]}" "$@" </dev/null >>"$output" 2>&1 &
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
        import -window "$shown" "rgba:$scratch/before" && sleep 0.4 &&
            import -window "$shown" "rgba:$scratch/now" && cmp "$scratch/before" "$scratch/now"
    }
    await "A still picture of \"$1\"" rests
}

# has_changed: whether the window no longer looks as it did at rest
has_changed() {
    import -window "$shown" "rgba:$scratch/next" && ! cmp -s "$scratch/now" "$scratch/next"
}

# click X Y [KEY...]: clicks into the window that is shown, and presses keys
click() {
    xdotool mousemove --window "$shown" "$1" "$2" click 1
    shift 2
    [ $# -eq 0 ] || xdotool key "$@"
}

close_window() { click 785 15; }

# window_is STATE: "Iconic" or "Normal"
window_is() { xprop -id "$shown" WM_STATE | grep -q "$1"; }

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
