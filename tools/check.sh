# Sourced by ./dev: the steps of ./dev check. Each is a function whose status says whether all
# is well; one that finds nothing to look at fails.
# shellcheck shell=bash

readonly check_steps='format scripts includes structure warnings headers resources analysis'

# Files that git knows or would add, matching the patterns, one a line.
our_files() {
  git ls-files --cached --others --exclude-standard -- "$@" | grep . || {
    echo "dev: no file matches $*" >&2
    return 1
  }
}

check_format() {
  our_files '*.h' '*.cpp' | xargs --no-run-if-empty clang-format --dry-run -Werror
}

check_scripts() {
  our_files dev .ci/run tools/render_scene.sh web/core/linking/wasm-opt | xargs --no-run-if-empty shellcheck --external-sources --check-sourced
}

check_includes() {
  our_files '*.h' '*.cpp' | tools/check_includes.py docs/architecture.md
}

check_structure() {
  tools/structure.py --check
}

check_warnings() {
  cmake --build --preset default
}

# Those that others include are compiled once more as others have them, alone among one another.
check_headers() {
  cmake --build --preset default --target check_headers all_verify_interface_header_sets
}

# Windows' own resource compiler is not here; this one reads the same language as strictly.
check_resources() {
  local made=build/plugin/resources
  gcc -E -xc -DRC_INVOKED -Iplugin/resources -I"$made" plugin/resources/OrvaneFileIO.rc >"$made/whole.rc" &&
    llvm-rc /no-preprocess /I plugin/resources /I "$made" /fo "$made/whole.res" "$made/whole.rc"
}

# The sources that the default build compiles, ours alone, without the tests: they are as many
# again, and what goes wrong in one of them shows when it runs, under the sanitizers too.
analysed_sources() {
  sed -n 's/^  "file": "\(.*\)",\{0,1\}$/\1/p' build/compile_commands.json |
    grep '\.cpp$' | grep -v -e "^$PWD/build" -e "^$PWD/tests/"
}

# clang's own warnings are among the diagnostics, so this is the check for them too.
check_analysis() {
  analysed_sources | tools/analyse.py build
}

run_checks() {
  local step failed=()
  for step in $check_steps; do
    echo "== $step"
    "check_$step" || failed+=("$step")
  done
  ((${#failed[@]} == 0)) || {
    echo "dev: failed: ${failed[*]}" >&2
    return 1
  }
  echo "dev: all checks passed"
}
