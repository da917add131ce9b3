# A screen of their own for scripts that show windows: to be sourced. What they start in the background is in $started;
# end_started ends it.

started=()
end_started() {
    [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2>/dev/null || true
    wait
}

# start_screen SIZE FOLDER: sets DISPLAY. The folder takes the files of the server.
start_screen() {
    local number
    [ -p "$2/display" ] || mkfifo "$2/display"
    Xvfb -displayfd 3 -screen 0 "$1x24" -dpi 96 -noreset -nolisten tcp 3>"$2/display" >"$2/xvfb.log" 2>&1 </dev/null &
    started+=($!)
    read -r -t 30 number <"$2/display" || { echo "Xvfb does not start: $(cat "$2/xvfb.log")" >&2; exit 1; }
    export DISPLAY=:$number
}
