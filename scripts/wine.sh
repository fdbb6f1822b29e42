# shellcheck shell=bash disable=SC2154 # root is setup.sh's
# Wine with a folder of its own, for the tests of the Windows programs. Sourced after setup.sh, not run.

export WINEPREFIX="$root/build/wine"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=" # no questions about further downloads

# Wine's services stay while the tests run, so that each program starts at once. They must not hold our output open, or
# whoever reads it waits for them.
start_wine() {
  if [[ ! -f "$WINEPREFIX/ready" ]]; then
    say "Setting up Wine in $WINEPREFIX"
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    env -u DISPLAY wineboot --init </dev/null >/dev/null 2>&1 || die "Wine could not be set up."
    # Windows without a screen: quicker, and the same everywhere.
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f </dev/null >/dev/null 2>&1
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    wineserver -w
    touch "$WINEPREFIX/ready"
  fi
  wineserver --persistent </dev/null >/dev/null 2>&1 || true # it runs already
  wine cmd /c exit </dev/null >/dev/null 2>&1 || die "Wine does not start."
  wine explorer </dev/null >/dev/null 2>&1 & # keeps the desktop, which each program would start anew
}

stop_wine() { wineserver --kill || true; }
