#!/usr/bin/env bash
# Runs every benchmark program under <builddir>/bench, one after the other.
#
#     scripts/bench.sh <builddir> [benchmark arguments...]
set -euo pipefail

if [ $# -lt 1 ]; then
  echo "usage: $0 <builddir> [benchmark arguments...]" >&2
  exit 2
fi
build=$(cd "$1" && pwd)
shift

if [ ! -d "$build/bench" ]; then
  echo "bench: no benchmarks built under $build/bench (configure with -DVELMORA_BENCH=ON)."
  exit 0
fi

mapfile -t programs < <(find "$build/bench" -path '*/CMakeFiles' -prune -o -path '*_autogen' -prune -o \
  -type f -executable ! -name '*.so' ! -name '*.so.*' ! -name '*.sh' -print | sort)
if [ ${#programs[@]} -eq 0 ]; then
  echo "bench: no benchmark programs found under $build/bench."
  exit 0
fi

export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
failed=0
for program in "${programs[@]}"; do
  echo "== ${program#"$build"/}"
  if ! "$program" "$@"; then
    echo "bench: ${program#"$build"/} failed" >&2
    failed=1
  fi
done
exit $failed
