# What the scripts share: the Debian packages and the builds. Sourced from the project's root.

build_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev qt6-base-dev qt6-l10n-tools
                qt6-translations-l10n fonts-dejavu-core)
test_packages=(libgtest-dev pkg-config xvfb openbox xdotool dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0
               dpkg-dev file)
bench_packages=(libbenchmark-dev libsqlite3-dev)
windows_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools googletest wine wine64
                  libwine-dev)
picture_packages=(imagemagick)
docs_packages=(doxygen)
deb_packages=(lintian mmdebstrap)
fuzz_packages=(clang libclang-rt-14-dev)

# Installs what is missing, and asks before it does when not run as root. Says nothing when nothing is missing.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  local install=(apt-get install -y --no-install-recommends "${missing[@]}")
  if [ "$(id -u)" = 0 ]; then
    apt-get update
    DEBIAN_FRONTEND=noninteractive "${install[@]}"
    return
  fi
  echo "These packages are missing: ${missing[*]}" >&2
  local answer
  read -r -p "Install them with sudo apt-get? [y/N] " answer || answer=n
  [[ $answer == [yY]* ]] || { echo "Nothing was installed." >&2; exit 1; }
  sudo apt-get update
  sudo "${install[@]}"
}

# Configures the preset if that has not been done, and builds it.
build() {
  local preset=$1
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" ${2:+--target "$2"}
}
