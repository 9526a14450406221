# Shared set-up of run, test, .ci/run and tools/*: sourced, never run. Installs the Debian packages that are
# missing and builds with one of the presets of CMakePresets.json.

readonly BUILD_PACKAGES=(
  g++ cmake ninja-build ccache
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  libjpeg62-turbo-dev libgif-dev zlib1g-dev libquazip1-qt6-dev
  libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev
  fontconfig fonts-liberation fonts-dejavu-core
)

# missing_packages PACKAGE...: those that are not installed, one a line.
missing_packages() {
  local package
  for package in "$@"; do
    [[ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" == installed ]] || echo "$package"
  done
}

as_root() {
  if ((EUID == 0)); then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "Installing packages needs root or sudo: $*" >&2
    return 1
  fi
}

# need_packages PACKAGE...: installs what is missing; calls no package manager when nothing is.
need_packages() {
  if ! command -v dpkg-query >/dev/null; then
    echo "Not a Debian system: taking it that these are there: $*" >&2
    return 0
  fi
  local missing
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]})) || return 0
  echo "Installing: ${missing[*]}"
  as_root apt-get update -q
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]: configures at the first call and builds the targets, all without one.
build() {
  local preset=$1 options=()
  shift
  (($#)) && options=(--target "$@")
  [[ -f "build/$preset/build.ninja" ]] || cmake --preset "$preset"
  cmake --build --preset "$preset" "${options[@]}"
}
