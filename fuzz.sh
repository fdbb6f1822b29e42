#!/usr/bin/env bash
# Feeds the editor anything, and says what broke. See --help.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

usage() {
  cat <<'END_OF_USAGE'
Usage: ./fuzz.sh MINUTES [TARGET...]
       ./fuzz.sh --smoke

Builds the fuzz targets in build-fuzz/ and runs each for that many minutes, all of them or those that are named. What
they find is kept under build-fuzz/findings/, what they learn under build-fuzz/corpus/.

  load      SetXMLStrings with any catalogue, configuration and cycle
  macro     any macro text
  dialog    variable definitions through the dialog
  xml       the XML service with any text
  steps     any steps of the player

  --smoke   30 seconds each
  --help    this text
END_OF_USAGE
}

targets=()
case "${1:-}" in
  --help | -h) usage; exit ;;
  --smoke) seconds=30 ;;
  '' | 0* | *[!0-9]*) usage >&2; die "how many minutes?" ;;
  *) seconds=$(($1 * 60)) ;;
esac
shift
for target in "$@"; do
  [[ -f "$root/fuzz/dictionaries/$target.dict" ]] || { usage >&2; die "unknown target: $target"; }
  targets+=("$target")
done
((${#targets[@]} > 0)) || targets=(load macro dialog xml steps)

install_packages build fuzz
build fuzz fuzzers
folder="$(folder_of fuzz)"
findings="$folder/findings"
jobs=$(($(nproc) > 1 ? 2 : 1))

# Runs one target; its log and its findings stay. Done when it has run for its time, or found something.
run_target() {
  local target="$1" learnt="$folder/corpus/$1"
  mkdir -p "$learnt" "$findings"
  nice "$folder/bin/fuzz-$target" "$learnt" "$root/fuzz/corpus/$target" \
    -dict="$root/fuzz/dictionaries/$target.dict" -artifact_prefix="$findings/$target-" \
    -max_total_time="$seconds" -len_control=20 -max_len=16384 -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 \
    >"$folder/$target.log" 2>&1
}

# The last figures of a target's log.
summary_of() {
  awk '/ cov: / { for (i = 1; i < NF; ++i) if ($i == "cov:" || $i == "ft:") figures[$i] = $(i + 1) }
    /number_of_executed_units/ { units = $2 }
    END { printf "%s units, %s edges, %s features", units, figures["cov:"], figures["ft:"] }' "$folder/$1.log"
}

report() {
  local target="$1" finding
  if [[ "$2" == 0 ]]; then
    say "fuzz-$target: nothing found in $seconds s; $(summary_of "$target")"
    return
  fi
  finding="$(sed -n 's/.*Test unit written to //p' "$folder/$target.log" | tail -n 1)"
  say "fuzz-$target: $(grep -m 1 -E '^BROKEN|ERROR: |runtime error|terminate called' "$folder/$target.log" || tail -n 1 "$folder/$target.log")"
  [[ -z "$finding" ]] || say "  Repeat it with: $folder/bin/fuzz-$target $finding"
  say "  Its log: $folder/$target.log"
  failed=1
}

failed=0
for ((i = 0; i < ${#targets[@]}; i += jobs)); do
  running=()
  for target in "${targets[@]:i:jobs}"; do
    run_target "$target" &
    running+=("$!")
  done
  for ((j = 0; j < ${#running[@]}; ++j)); do
    status=0
    wait "${running[j]}" || status=$?
    report "${targets[i + j]}" "$status"
  done
done
exit "$failed"
