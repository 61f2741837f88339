# Shared by the end-to-end tests (sourced): a new user's home, and a run of the real program
# under Xvfb that waits until its main window reports what it shows.

# xvfb_run SECONDS COMMAND...: runs COMMAND on a private X server of 1024x768 at 24 bits, ended
# after SECONDS. The server number is searched from a random start: two sessions started at
# once (other test runs on the same machine) would otherwise both take the first free number.
xvfb_run() {
    local seconds=$1
    shift
    timeout "$seconds" xvfb-run -a -n $((100 + RANDOM % 800)) -s "-screen 0 1024x768x24" "$@"
}

# Makes $work: a temporary folder, removed at exit, with a fresh home and runtime folder.
new_user() {
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    mkdir -p "$work/home" "$work/run"
    chmod 700 "$work/run"
}

# run_until_report FOLDER SCREENSHOT PROGRAM [ARGS...]
# Starts PROGRAM in FOLDER as the new user, waits (at most 30 s) for $work/report.txt, saves a
# picture of the screen as SCREENSHOT, then ends the program. Fails when no report came.
run_until_report() {
    cat >"$work/session.sh" <<'SESSION'
set -eu
work=$1 folder=$2 shot=$3
shift 3
cd "$folder"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
XDG_RUNTIME_DIR="$work/run" ORVANNE_REPORT_FILE="$work/report.txt" "$@" &
pid=$!
for _ in $(seq 300); do
    [ -s "$work/report.txt" ] && break
    sleep 0.1
done
sleep 0.5
if command -v import >/dev/null; then
    import -window root "$shot" || true
fi
kill $pid 2>/dev/null || true
wait $pid 2>/dev/null || true
SESSION
    xvfb_run 60 bash "$work/session.sh" "$work" "$@"
    if [ ! -s "$work/report.txt" ]; then
        echo "the program's main window never came up" >&2
        return 1
    fi
    cat "$work/report.txt"
}

# expect_line LINE: the report holds exactly this line.
expect_line() {
    grep -qxF "$1" "$work/report.txt" || {
        echo "expected: $1" >&2
        return 1
    }
}
