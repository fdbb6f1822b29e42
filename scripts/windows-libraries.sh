# shellcheck shell=bash disable=SC2154 # root is setup.sh's
# The libraries that the Windows programs are linked with, built from the sources of Debian's packages, in the version
# that this machine has installed. Sourced after setup.sh, not run.

libraries="$root/build/windows-libraries"

# Runs a command without a word; on failure shows the end of what it said.
quietly() {
  local output
  output="$("$@" 2>&1 </dev/null)" || {
    tail --lines=30 <<<"$output" >&2
    return 1
  }
}

# Where this machine gets its Debian packages from, as sources of source packages: this machine's own list of sources
# need not name any.
list_source_archives() {
  local uri suite component known=""
  # shellcheck disable=SC2016 # the words in the format are apt-get's
  while IFS='|' read -r uri suite component; do
    [[ "$known" != *"|$uri $suite $component|"* ]] || continue
    known+="|$uri $suite $component|"
    printf 'Types: deb-src\nURIs: %s\nSuites: %s\nComponents: %s\n' "$uri" "$suite" "$component"
    printf 'Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg\n\n'
  done < <(apt-get indextargets --format '$(REPO_URI)|$(RELEASE)|$(COMPONENT)' 'Created-By: Packages' 'Origin: Debian')
}

# apt-get with lists of its own below the build folder.
source_apt_get() {
  quietly apt-get -qq -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$libraries/apt/sources" \
    -o Dir::State::lists="$libraries/apt/lists" -o Dir::Cache="$libraries/apt/cache" -o APT::Sandbox::User= "$@"
}

# fetch_source PACKAGE: the sources that an installed package was built from, in a folder of the source's name.
fetch_source() {
  local name version
  read -r name version < <(dpkg-query --show --showformat='${source:Package} ${source:Version}\n' "$1")
  if [[ ! -d "$libraries/apt/lists" ]]; then
    mkdir -p "$libraries/apt/"{sources,lists/partial,cache/archives/partial}
    list_source_archives >"$libraries/apt/sources/debian.sources"
    source_apt_get update || die "the lists of Debian's sources could not be fetched."
  fi
  mkdir -p "$libraries/sources"
  rm -rf "${libraries:?}/sources/$name"*
  (cd "$libraries/sources" &&
    # An archive keeps the newest version only; this machine may be behind it.
    { source_apt_get source --download-only "$name=$version" 2>/dev/null ||
      source_apt_get source --download-only "$name"; } &&
    quietly dpkg-source --no-check -x "$name"_*.dsc "$name") ||
    die "the sources of $name could not be fetched."
}

# build_library NAME SOURCES CMAKE-OPTION...: into the folder where cmake/mingw-w64.cmake looks for libraries.
build_library() {
  local name="$1" sources="$2"
  shift 2
  say "Building $name for Windows"
  {
    quietly cmake -G Ninja -S "$sources" -B "$libraries/build-$name" \
      -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64.cmake" -DCMAKE_BUILD_TYPE=Release \
      -DCMAKE_INSTALL_PREFIX="$libraries/installed" -DBUILD_SHARED_LIBS=OFF "$@" &&
      quietly cmake --build "$libraries/build-$name" --target install
  } || die "$name could not be built for Windows."
}

# Headers need no building; our compiler must not see the other headers that they are installed beside.
copy_headers() {
  mkdir -p "$libraries/installed/include" "$libraries/installed/share/cmake"
  cp -r /usr/include/CLI /usr/include/nlohmann "$libraries/installed/include/"
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$libraries/installed/share/cmake/"
}

# Everything, unless it is there already in these versions.
build_windows_libraries() {
  local wanted
  wanted="$(dpkg-query --show libxml2-dev googletest libcli11-dev nlohmann-json3-dev \
    g++-mingw-w64-x86-64-posix && sha256sum <"$root/scripts/windows-libraries.sh")"
  if [[ "$(cat "$libraries/versions" 2>/dev/null)" == "$wanted" ]]; then return; fi
  rm -rf "$libraries"
  mkdir -p "$libraries"

  fetch_source libxml2-dev
  local option off=()
  for option in C14N CATALOG DEBUG DOCB FTP HTML HTTP ICONV ISO8859X LEGACY LZMA MODULES PATTERN PROGRAMS PUSH PYTHON \
    READER REGEXPS SAX1 SCHEMAS SCHEMATRON TESTS WRITER XINCLUDE XPATH XPTR ZLIB; do
    off+=("-DLIBXML2_WITH_$option=OFF")
  done
  # Static also for itself: otherwise whoever is linked with it exports its functions.
  build_library libxml2 "$libraries/sources/libxml2" -DCMAKE_C_FLAGS=-DLIBXML_STATIC "${off[@]}"
  build_library googletest /usr/src/googletest -DCMAKE_CXX_STANDARD=20
  copy_headers
  printf '%s\n' "$wanted" >"$libraries/versions"
}
