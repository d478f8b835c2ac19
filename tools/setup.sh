# Shared by ./run and ./test: installs what is missing, builds a preset. Sourced, not run.

say() { printf '== %s\n' "$*" >&2; }

packages=(
  g++ clang-14 lld-14 libclang-rt-14-dev llvm-14 cmake ninja-build ccache clang-format-14 python3 pkg-config
  qt6-base-dev qt6-qpa-plugins libgl1-mesa-dev fonts-liberation
  nlohmann-json3-dev libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev
)

# Names the packages that dpkg does not know as installed.
missing_packages() {
  local name
  for name in "${packages[@]}"; do
    dpkg-query --show --showformat='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed || echo "$name"
  done
}

install_packages() {
  local missing
  mapfile -t missing < <(missing_packages)
  [[ ${#missing[@]} -eq 0 ]] && return
  say "installing ${missing[*]}"
  local as_root=()
  [[ $(id -u) -eq 0 ]] || as_root=(sudo)
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# configure PRESET [options of cmake...]
configure() {
  local launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  cmake --preset "$1" "${launcher[@]}" "${@:2}" >/dev/null
}

# build PRESET [targets...]
build() {
  say "building ($1)"
  cmake --build --preset "$1" ${2:+--target "${@:2}"}
}

check_format() {
  say "checking the format"
  git ls-files '*.cpp' '*.h' | xargs -r -d '\n' clang-format-14 --dry-run --Werror
}

install_packages
