# Sourced by ./dev: finds out what a command needs and is not there, and installs it.
#
# A tool counts as present when its command or header is found, whoever installed it. On
# Debian 12 what is missing is installed with apt-get; elsewhere the packages are named and
# the command stops. When nothing is missing nothing is done.
# shellcheck shell=bash

# One line per need: kind, what to look for, Debian package that has it.
readonly build_needs='
command cmake                                     cmake
command g++                                       g++
command ninja                                     ninja-build
command ccache                                    ccache
command x86_64-w64-mingw32-windres                binutils-mingw-w64-x86-64
header  assimp/Importer.hpp                       libassimp-dev
header  CLI/CLI.hpp                               libcli11-dev
header  fast_float/fast_float.h                   libfast-float-dev
header  fmt/format.h                              libfmt-dev
header  nlohmann/json.hpp                         nlohmann-json3-dev
header  tiny_gltf.h                               libtinygltf-dev
header  sqlite3.h                                 libsqlite3-dev
header  zlib.h                                    zlib1g-dev
header  gtest/gtest.h                             libgtest-dev
header  gmock/gmock.h                             libgmock-dev
header  benchmark/benchmark.h                     libbenchmark-dev
'
readonly python_needs='
command python3                                   python3
'
readonly wheel_needs='
path    /usr/include/python3*/Python.h            python3-dev
path    /usr/lib/python3*/ensurepip/__init__.py   python3-venv
'
readonly test_needs='
command git                                       git
command node                                      nodejs
command npm                                       npm
command man                                       man-db
command groff                                     groff-base
command parallel                                  parallel
path    /usr/lib/R/site-library/data.table        r-cran-data.table
path    /usr/lib/python3*/ensurepip/__init__.py   python3-venv
path    /etc/ssl/certs/ca-certificates.crt        ca-certificates
path    /usr/share/i18n/locales/de_DE             locales
'
readonly check_needs='
command clang-format                              clang-format
command clang-tidy                                clang-tidy
command git                                       git
command llvm-rc                                   llvm
command shellcheck                                shellcheck
'
readonly windows_needs='
command x86_64-w64-mingw32-g++-posix              g++-mingw-w64-x86-64-posix
path    /usr/x86_64-w64-mingw32/include/zlib.h    libz-mingw-w64-dev
path    /usr/src/googletest/googlemock            googletest
path    /usr/lib/wine/wine64                      wine64
path    /usr/share/wine/fonts/tahoma.ttf          fonts-wine
command Xvfb                                      xvfb
'
readonly web_needs='
command em++                                      emscripten
command node                                      nodejs
command npm                                       npm
path    /etc/ssl/certs/ca-certificates.crt        ca-certificates
path    /usr/src/googletest/googlemock            googletest
'
readonly browser_needs='
command chromium                                  chromium
path    /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf  fonts-dejavu-core
'
readonly package_needs='
command dpkg-shlibdeps                            dpkg-dev
command file                                      file
command lintian                                   lintian
path    /usr/lib/python3/dist-packages/numpy/__init__.py  python3-numpy
command pkg-config                                pkg-config
'
readonly sanitize_needs='
command clang++                                   clang
path    /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.asan-*.a  libclang-rt-14-dev
path    /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-*.a  libclang-rt-14-dev
'

has_command() { command -v "$1" >/dev/null; }

has_path() { compgen -G "$1" >/dev/null; }

has_header() {
  has_path "/usr/include/$1" || has_path "/usr/local/include/$1" ||
    has_path "/usr/include/*-linux-gnu/$1"
}

# The packages of the given needs whose command, header or path is absent, one a line.
missing_packages() {
  local kind what package
  while read -r kind what package; do
    [[ -z $kind ]] || "has_$kind" "$what" || echo "$package"
  done <<<"$1" | sort -u
}

is_debian_12() {
  has_command apt-get && grep -qx 'ID=debian' /etc/os-release &&
    grep -qx 'VERSION_ID="12"' /etc/os-release
}

can_install() { is_debian_12 && { ((EUID == 0)) || has_command sudo; }; }

as_root() {
  if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

install_packages() {
  if ! can_install; then
    echo "dev: these packages of Debian 12, or what they are called here, are needed: $*" >&2
    exit 1
  fi
  echo "dev: installing $*"
  as_root apt-get -qq -o DPkg::Lock::Timeout=300 update
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 \
    install -y --no-install-recommends "$@" >/dev/null
}

# need LIST...: makes sure that everything in the lists is there.
need() {
  local packages
  mapfile -t packages < <(missing_packages "$(printf '%s\n' "$@")")
  ((${#packages[@]} == 0)) || install_packages "${packages[@]}"
}

need_everything() {
  need "$build_needs" "$python_needs" "$test_needs" "$check_needs" "$windows_needs" \
    "$web_needs" "$browser_needs" "$package_needs" "$sanitize_needs" "$wheel_needs"
}

# The npm packages of package-lock.json, installed again only when that file has changed.
need_node_modules() {
  [[ node_modules/.package-lock.json -nt package-lock.json ]] && return
  echo "dev: installing the packages of package-lock.json below node_modules/"
  npm ci --ignore-scripts --no-audit --no-fund --loglevel=error
}

# Other programs' readers of our files that are packages of Python. Tests that want them are skipped
# where they cannot be had.
need_reader_packages() {
  local folder=build-readers list=tests/readers/requirements.txt
  [[ $folder/.ready -nt $list ]] && return
  echo "dev: installing the packages of $list below $folder/"
  if /usr/bin/python3 -m venv --clear "$folder" &&
    "$folder/bin/pip" install --quiet --disable-pip-version-check --requirement "$list"; then
    touch "$folder/.ready"
  else
    echo "dev: they cannot be installed; the tests that read our files with them are skipped" >&2
  fi
}

# A locale with a decimal comma, for the tests that no locale changes a number.
need_comma_locale() {
  local locale=build-locale/de_DE.UTF-8
  [[ -e $locale ]] && return
  mkdir -p build-locale
  localedef --inputfile de_DE --charmap UTF-8 "$PWD/$locale"
}
