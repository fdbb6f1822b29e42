#!/usr/bin/env bash
# Makes the pictures of the README again, in docs/images/: the scenario working-day, played on the Qt edition.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

install_packages build run
build release cyced-tour
for theme in light dark; do
  "$root/build/bin/cyced-tour" --theme "$theme" --samples "$root/samples" \
    "$root/tests/scenarios/working-day.scenario" "$root/docs/images"
done
say "Pictures: $root/docs/images"
