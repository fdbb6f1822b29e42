#!/usr/bin/env bash
# The checks of the sources behind ./test.sh --format and ./test.sh --lint.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$root"

# Our sources with one of these endings, each closed by a zero byte.
sources() {
  local ending names=()
  for ending in "$@"; do names+=(-o -name "*.$ending"); done
  find src apps tests examples bench fuzz -type f \( "${names[@]:1}" \) -print0 | sort -z
}

check_format() {
  install_packages format
  sources h cpp | xargs -0 --no-run-if-empty clang-format --dry-run -Werror ||
    die "the layout of these sources differs from .clang-format; clang-format -i mends a file."
  say "clang-format: no differences"
}

check_scripts() {
  shellcheck --external-sources --source-path=SCRIPTDIR ./*.sh scripts/*.sh .ci/run ||
    die "shellcheck found the above."
  say "shellcheck: no findings"
}

# The sources that the build compiles, generated ones left out, each closed by a zero byte.
compiled_sources() {
  python3 -c '
import json, pathlib
root = pathlib.Path.cwd()
build = root / "build"
files = {pathlib.Path(command["file"]) for command in json.loads((build / "compile_commands.json").read_text())}
for file in sorted(file for file in files if root in file.parents and build not in file.parents):
    print(file, end="\0")
'
}

# Builds first: clang-tidy reads the headers that the build generates.
check_tidy() {
  build release
  compiled_sources |
    xargs -0 --no-run-if-empty --max-args=1 --max-procs="$(nproc)" clang-tidy-16 -p build --quiet \
      2> >(grep --invert-match 'warnings\? generated' >&2) ||
    die "clang-tidy found the above."
  say "clang-tidy: no findings"
}

check_format
if [[ "${1:-}" == --lint ]]; then
  install_packages build run lint
  check_scripts
  check_tidy
fi
