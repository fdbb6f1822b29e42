#!/usr/bin/env bash
# Makes the pictures of the README and the help again, in docs/images/ and docs/help/images/: the scenario
# working-day, played on the Qt edition.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

install_packages build run
build release cyced-tour
for theme in light dark; do
  "$root/build/bin/cyced-tour" --theme "$theme" --samples "$root/samples" \
    "$root/tests/scenarios/working-day.scenario" "$root/docs/images"
done
for picture in editor menu refusal variable-dialog; do
  cp "$root/docs/images/$picture-light.png" "$root/docs/help/images/$picture.png"
done
say "Pictures: $root/docs/images"
