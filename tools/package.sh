# Sourced by ./dev: makes the packages, and unpacks and uses each of them.
# shellcheck shell=bash

# package_preset PRESET TARGET...: packages what these targets of the preset build.
package_preset() {
  build "$1" --target "${@:2}"
  local folder
  folder=$(preset_folder "$1")
  rm -rf "$folder/packages"
  cpack --config "$folder/CPackConfig.cmake" >"$folder/packages.log" || {
    cat "$folder/packages.log" >&2
    return 1
  }
  rm -rf "$folder/packages/_CPack_Packages"
}

preset_folder() {
  case $1 in
    default) echo build ;;
    *) echo "build-$1" ;;
  esac
}

# The tests of the packages that lie in these folders; run it with Wine at hand.
try_packages() {
  local IFS=:
  ORVANE_SOURCE_DIR=$PWD ORVANE_PACKAGES="$*" \
    ORVANE_WINE=$(wine_tool wine64) PYTHONPATH=$PWD/tests/run_paths PYTHONDONTWRITEBYTECODE=1 \
    python3 -m unittest discover --quiet --start-directory tests/packages --pattern '*_test.py'
}
