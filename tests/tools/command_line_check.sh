#!/usr/bin/env bash
# The command's conventions, run as a user would: usage on standard output
# with status 0 when asked for, on standard error with status 2 on a wrong
# use; the version; a lost answer ends `automate` with a non-zero status.
#   command_line_check.sh FERLAN VERSION
set -uo pipefail
ferlan=$1
version=$2
fail() { echo "FAIL: $*"; exit 1; }

for ask in help --help; do
  out=$("$ferlan" "$ask" 2>/dev/null) || fail "ferlan $ask exits $?"
  for word in methods automate --surface fixed raster run help --help --version; do
    grep -q -- "$word" <<<"$out" || fail "ferlan $ask does not name $word"
  done
done
[ "$("$ferlan" --version)" = "ferlan $version" ] || fail "ferlan --version"
for wrong in "" bogus "methods extra" "automate --bogus" "--help extra"; do
  # shellcheck disable=SC2086
  out=$("$ferlan" $wrong 2>/dev/null); status=$?
  [ "$status" -eq 2 ] || fail "ferlan $wrong exits $status, not 2"
  [ -z "$out" ] || fail "ferlan $wrong writes on standard output"
done
# An X server that is not there: one line, and status 2.
# (Under the leak checker, without its own count of suppressed leaks.)
err=$(DISPLAY=:1234567 WAYLAND_DISPLAY= LSAN_OPTIONS="${LSAN_OPTIONS:-}:print_suppressions=0" \
  "$ferlan" run /dev/null 2>&1 >/dev/null); status=$?
[ "$status" -eq 2 ] && [ "$(wc -l <<<"$err")" -eq 1 ] && grep -q "no display" <<<"$err" ||
  fail "ferlan run without its X server exits $status: $err"
# A directory is no file to play, display or not.
err=$("$ferlan" run / 2>&1 >/dev/null); status=$?
[ "$status" -eq 2 ] && grep -q "cannot read" <<<"$err" || fail "ferlan run / exits $status: $err"
for ask in methods --help --version; do
  "$ferlan" $ask >/dev/full 2>/dev/null && fail "ferlan $ask ignores a full output"
done
"$ferlan" automate </ >/dev/null 2>&1 && fail "an input that cannot be read ends automate with 0"
echo '{"call":"NbCol"}' | "$ferlan" automate >/dev/full 2>/dev/null && fail "a full output is ignored"
echo '{"call":"NbCol"}' | "$ferlan" automate >&- 2>/dev/null && fail "a closed output is ignored"
# With SIGPIPE ignored and the reader gone, the session ends by itself.
(trap '' PIPE; yes '{"call":"NbCol"}' 2>/dev/null | timeout 60 "$ferlan" automate 2>/dev/null | head -n 1 >/dev/null
 exit "${PIPESTATUS[1]}")
status=$?
[ "$status" -eq 1 ] || fail "with the reader gone, automate exits $status, not 1"
# A picture over the answers' own file, regular as it is, would wipe them.
answers=$(mktemp)
printf '%s\n' '{"call":"NbCol"}' "{\"png\":\"$answers\"}" | "$ferlan" automate >"$answers" 2>/dev/null
grep -q '"ok":true' "$answers" && grep -q 'standard stream' "$answers" ||
  fail "a png over the answers' file: $(head -c 200 "$answers")"
rm -f "$answers"
echo "command line: as expected"
