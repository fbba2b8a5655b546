# Sourced by ./dev: makes the wheel of the Python package, and tries it where nothing else of ours is.
# shellcheck shell=bash

# By its path: the first python3 of a search path may be another than Debian's.
readonly wheel_python=/usr/bin/python3
readonly wheel_folder=build-python
# What has CMake build the package too, by the tools that wheel_venv installs.
readonly with_python=(-DORVANE_BUILD_PYTHON=ON -DPython_EXECUTABLE="$PWD/$wheel_folder/tools/bin/python")

# wheel_venv NAME REQUIREMENTS: a virtual environment below the folder, with these packages of PyPI.
wheel_venv() {
  local venv=$wheel_folder/$1
  [[ $venv/made -nt $2 ]] && return
  echo "dev: installing the packages of $2 below $venv/"
  "$wheel_python" -m venv --clear "$venv"
  "$venv/bin/python" -m pip install --quiet --disable-pip-version-check --requirement "$2"
  touch "$venv/made"
}

# The wheel, from the archive of sources alone, as pip makes it on any machine.
make_wheel_of_archive() {
  local archive=$wheel_folder/archive
  rm -rf "$archive"
  "$wheel_folder/tools/bin/python" -m build --sdist --outdir "$archive" python >"$wheel_folder/archive.log" 2>&1 || {
    cat "$wheel_folder/archive.log" >&2
    return 1
  }
  tar --extract --directory "$archive" --file "$archive"/orvane-*.tar.gz
  "$wheel_folder/tools/bin/python" -m pip wheel --quiet --no-deps --wheel-dir "$wheel_folder/made" \
    --config-settings build-dir="$PWD/$wheel_folder/cmake" "$archive"/orvane-*/
}

# make_wheel_of_build BUILD: the wheel, of the objects of a build.
make_wheel_of_build() {
  local tools=$PWD/$wheel_folder/tools/bin/python
  cmake -S . -B "$1" "${with_python[@]}" >/dev/null
  cmake --build "$1" --target _orvane orvane_stub OrvaneFileIO
  ORVANE_BUILD=$PWD/$1 "$tools" -m pip wheel --quiet --no-deps --no-build-isolation \
    --wheel-dir "$wheel_folder/made" ./python
}

# Has it hold the libraries that not every system has, and tells on which systems it works.
repair_wheel() {
  local PATH=$PWD/$wheel_folder/tools/bin:$PATH
  auditwheel repair --strip --wheel-dir "$wheel_folder/wheels" "$wheel_folder"/made/orvane-*.whl
  auditwheel show "$wheel_folder"/wheels/orvane-*.whl
}

# Its tests, in a new environment and in a folder without the sources.
try_wheel() {
  local venv=$PWD/$wheel_folder/try place status=0
  "$venv/bin/python" -m pip install --quiet --disable-pip-version-check --force-reinstall --no-deps \
    "$wheel_folder"/wheels/orvane-*.whl
  place=$(mktemp --directory)
  cp -r python/tests python/examples examples/walk.{htr,mnm,trc} docs/python.md docs/cookbook/pandas.md "$place"
  cp README.md "$place/readme.md"
  "$venv/bin/python" python/try_package.py "$place" || status=1
  rm -rf "$place"
  return "$status"
}
