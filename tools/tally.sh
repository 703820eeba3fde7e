# Sourced by the scripts that count: keeps the totals and writes the closing line
# "N passed, M failed", with ", K skipped" where something was.
passed=0 failed=0 skipped=0

Say() { printf '\n== %s\n' "$*"; }

# Check NAME COMMAND...: one check, passed when the command succeeds. Its output is shown when it
# does not.
Check() {
    local name=$1 output
    shift
    if output=$("$@" 2>&1); then
        passed=$((passed + 1))
        echo "PASS  $name"
    else
        failed=$((failed + 1))
        echo "FAIL  $name"
        [[ -z "$output" ]] || sed 's/^/      /' <<<"$output"
    fi
}

# AddTotals NAME STATUS FILE: adds the last line "N passed, M failed" of what a program wrote. A
# program that failed without counting a failure, or that counted nothing, is a failure itself.
AddTotals() {
    local name=$1 status=$2 line before=$failed
    local pattern='^([0-9]+) passed, ([0-9]+) failed(, ([0-9]+) skipped)?$'
    line=$(grep -E "$pattern" "$3" | tail -n 1 || true)
    if [[ "$line" =~ $pattern ]]; then
        passed=$((passed + BASH_REMATCH[1]))
        failed=$((failed + BASH_REMATCH[2]))
        skipped=$((skipped + ${BASH_REMATCH[4]:-0}))
    else
        echo "FAIL  $name: it counted nothing"
        failed=$((failed + 1))
    fi
    if ((status != 0 && failed == before)); then
        echo "FAIL  $name: it ended with status $status"
        failed=$((failed + 1))
    fi
}

# Count NAME COMMAND...: runs a command that ends with a counting line, and adds it up.
Count() {
    local name=$1 status=0 output
    shift
    output=$(mktemp)
    "$@" 2>&1 | tee "$output" || status=$?
    AddTotals "$name" "$status" "$output"
    rm -f "$output"
}

# Finish: writes the closing line. It succeeds when something ran and nothing failed.
Finish() {
    echo
    ((skipped > 0)) && echo "$passed passed, $failed failed, $skipped skipped" ||
        echo "$passed passed, $failed failed"
    ((failed == 0 && passed > 0))
}
