#!/usr/bin/env bash
# Sets up, builds everything and runs the tests. See --help.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

usage() {
  cat <<'END'
Usage: ./test.sh [--sanitize] [-- CTEST ARGUMENTS]
       ./test.sh --format | --lint

Installs the missing packages of packages.txt, builds everything in build/ and runs all tests without a display.

  --sanitize           the same tests in build-sanitize/, under AddressSanitizer and UndefinedBehaviorSanitizer; then
                       ./fuzz.sh --smoke, unless there are CTEST ARGUMENTS
  --format             no tests: checks the layout of the sources with clang-format
  --lint               no tests: --format, then clang-tidy over the sources and shellcheck over the scripts
  -- CTEST ARGUMENTS   more arguments for ctest, as in ./test.sh -- -R structure
  --help               this text
END
}

preset=release
while (($# > 0)); do
  case "$1" in
    --sanitize) preset=sanitize ;;
    --format | --lint) exec "$root/scripts/lint.sh" "$1" ;;
    --help | -h) usage; exit ;;
    --) shift; break ;;
    *) usage >&2; die "unknown argument: $1" ;;
  esac
  shift
done

install_packages build run help
build "$preset"
cd "$root"
if [[ "$preset" != sanitize ]] || (($# > 0)); then exec ctest --preset "$preset" "$@"; fi
ctest --preset "$preset"
exec ./fuzz.sh --smoke
