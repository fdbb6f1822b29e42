#!/usr/bin/env bash
# Builds and runs the benchmarks. See --help.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

usage() {
  cat <<'END'
Usage: ./bench.sh [-- ARGUMENTS]

Installs the missing packages of packages.txt, builds the benchmarks in build/ and prints a table: the editor's time, a
yardstick's time in the same run, their ratio and the highest ratio that is wanted. The rows are left in
build/bench.json too. A target that is missed is named, and is no failure.

  -- ARGUMENTS   options for Google Benchmark, as in ./bench.sh -- --benchmark_filter=CycleChanged
  --help         this text
END
}

while (($# > 0)); do
  case "$1" in
    --help | -h) usage; exit ;;
    --) shift; break ;;
    *) usage >&2; die "unknown argument: $1" ;;
  esac
  shift
done

install_packages build run
build release cyced-bench
# The windows are drawn off screen, so that nothing else on the screen has a say in the times.
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='default.warning=false'
"$root/build/bin/cyced-bench" "$root/build/bench.json" "$@" || die "the benchmarks ended with exit code $?."
