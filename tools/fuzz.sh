# Sourced by ./dev: runs the fuzz targets, as many at a time as there are processors.
# shellcheck shell=bash

# What one input may use before that counts as a find: seconds, and megabytes in all and at once.
readonly fuzz_limits='-timeout=10 -rss_limit_mb=1024 -malloc_limit_mb=256'

# Targets are known by their corpora.
fuzz_targets() { basename --multiple fuzz/corpus/*/; }

# fuzz_target NAME SECONDS: what it finds, and inputs that lead somewhere new, stay in build-fuzz.
fuzz_target() {
  local known=build-fuzz/corpus/$1 log=build-fuzz/$1.log
  mkdir -p "$known" build-fuzz/finds
  # shellcheck disable=SC2086  # a list of options
  if build-sanitize/fuzz/"$1"_fuzzer $fuzz_limits -max_total_time="$2" -print_final_stats=1 \
    -artifact_prefix="build-fuzz/finds/$1-" "$known" "fuzz/corpus/$1" >"$log" 2>&1; then
    echo "$1: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs, nothing found"
  else
    tail -n 60 "$log" >&2
    echo "dev: $1 has found something; it is in build-fuzz/finds, and the rest in $log" >&2
    return 1
  fi
}

run_fuzzers() {
  export -f fuzz_target
  export fuzz_limits
  # shellcheck disable=SC2016  # expanded by the shell that runs one target
  fuzz_targets | xargs --max-args=1 --max-procs="$(nproc)" \
    bash -c 'set -euo pipefail; fuzz_target "$2" "$1"' fuzz "$1"
}
