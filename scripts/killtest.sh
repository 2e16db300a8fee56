#!/bin/bash
# Crash test of the two long writes of evida-cli (NOT a CI test; it takes minutes): an import
# of 20 000 journal rows and the rebuild of a damaged journal table are killed with kill -9 at
# random moments, many times. After every kill the company file must pass SQLite's
# integrity check and hold either none or all of the rows, and every copy made before a
# repair must be a whole database.
#
#   scripts/killtest.sh [ROUNDS]      (default 40 rounds of each; BUILD=build-dir, default build)
set -u
cd "$(dirname "$0")/.."
CLI="$(pwd)/${BUILD:-build}/evida-cli"
ROUNDS=${1:-40}
ROWS=20000
[ -x "$CLI" ] || { echo "evida-cli not found at $CLI (build first)"; exit 2; }
command -v sqlite3 >/dev/null || { echo "sqlite3 is needed"; exit 2; }

WORK=$(mktemp -d /tmp/evida-killtest-XXXXXX)
trap 'rm -rf "$WORK"' EXIT
export HOME="$WORK/home"
mkdir -p "$HOME"
failures=0

now_ms() { echo $(( $(date +%s%N) / 1000000 )); }
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

# Checks one file: integrity, and the journal holds 0 or all rows (or exactly `$2` rows).
check_file() {
    local file=$1 expect=$2
    local integrity rows
    integrity=$(sqlite3 "$file" 'PRAGMA integrity_check' 2>&1)
    [ "$integrity" = "ok" ] || { fail "$file: $integrity"; return; }
    rows=$(sqlite3 "$file" 'SELECT count(*) FROM denik' 2>&1)
    case "$expect" in
        all-or-none) [ "$rows" = 0 ] || [ "$rows" = $ROWS ] || fail "$file: $rows journal rows" ;;
        *) [ "$rows" = "$expect" ] || fail "$file: $rows journal rows, expected $expect" ;;
    esac
}

# Runs a command, kills it after a random part of `$1` milliseconds, waits for it.
kill_randomly() {
    local span=$1
    shift
    "$@" >/dev/null 2>&1 &
    local pid=$!
    local delay=$(( RANDOM * RANDOM % (span + 1) ))
    sleep "$(printf '%d.%03d' $((delay / 1000)) $((delay % 1000)))"
    kill -9 "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
}

# --- the company and the CSV ---------------------------------------------------------
"$CLI" create "$WORK/template.db" >/dev/null || { echo "create failed"; exit 1; }
year=$(date +%Y)
awk -v y="$year" -v n=$ROWS 'BEGIN { for (i = 1; i <= n; i++) printf "%s-01-15;;Trzba %d;%d;POK1;P001;\n", y, i, i % 500 + 1 }' \
    >"$WORK/rows.csv"

# --- 1. the import ----------------------------------------------------------------------
cp "$WORK/template.db" "$WORK/f.db"
start=$(now_ms)
"$CLI" import "$WORK/f.db" "$WORK/rows.csv" >/dev/null || { echo "import failed"; exit 1; }
span=$(( $(now_ms) - start + 50 ))
check_file "$WORK/f.db" $ROWS
cp "$WORK/f.db" "$WORK/imported.db"
echo "import of $ROWS rows takes about $span ms; killing it $ROUNDS times"
for ((i = 1; i <= ROUNDS; i++)); do
    cp "$WORK/template.db" "$WORK/f.db"
    rm -f "$WORK/f.db-journal"
    kill_randomly "$span" "$CLI" import "$WORK/f.db" "$WORK/rows.csv"
    check_file "$WORK/f.db" all-or-none
done

# --- 2. the rebuild of a damaged journal ---------------------------------------------------
# The journal loses its statement column and its keys; opening it rebuilds the table.
sqlite3 "$WORK/imported.db" "BEGIN; CREATE TABLE x AS SELECT id,datum,cislo,popis,castka,castkacizi,kurz,reference,\
pausal,menaid,predkontaceid,pokladnaid,bankaid,protistranaid,obdobirok FROM denik; DROP TABLE denik;\
ALTER TABLE x RENAME TO denik; COMMIT;" || exit 1
mkdir -p "$WORK/rebuild"
cp "$WORK/imported.db" "$WORK/rebuild/f.db"
start=$(now_ms)
"$CLI" check "$WORK/rebuild/f.db" >/dev/null || fail "check of the damaged journal failed"
span=$(( $(now_ms) - start + 50 ))
check_file "$WORK/rebuild/f.db" $ROWS
echo "rebuild takes about $span ms; killing it $ROUNDS times"
for ((i = 1; i <= ROUNDS; i++)); do
    rm -f "$WORK/rebuild/"*
    cp "$WORK/imported.db" "$WORK/rebuild/f.db"
    kill_randomly "$span" "$CLI" check "$WORK/rebuild/f.db"
    check_file "$WORK/rebuild/f.db" $ROWS
    for copy in "$WORK/rebuild/"*.pred-upravou-*.db; do
        [ -e "$copy" ] && check_file "$copy" $ROWS
    done
    # Opening again finishes the repair.
    "$CLI" check "$WORK/rebuild/f.db" >/dev/null || fail "round $i: the file does not open after the kill"
    check_file "$WORK/rebuild/f.db" $ROWS
done

if [ $failures -eq 0 ]; then
    echo "killtest: all files whole"
    exit 0
fi
echo "killtest: $failures failures"
exit 1
