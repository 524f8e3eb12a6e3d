#!/usr/bin/env bash
# The demo: starts the device emulator with its fleet, then opens the viewer's fleet window
# on it when there is a display, or renders every page of every emulated device to PNG
# files when there is none (or with --snapshot-only). Stops the emulator at the end.
#
#     scripts/demo.sh <builddir> [--snapshot-only]
#
# VELMORA_LANG chooses the language shown: en (the default), zh_CN, or keys for the raw keys.
set -euo pipefail

if [ $# -lt 1 ]; then
  echo "usage: $0 <builddir> [--snapshot-only]" >&2
  exit 2
fi
build=$(cd "$1" && pwd)
snapshot_only=0
if [ "${2:-}" = "--snapshot-only" ]; then
  snapshot_only=1
fi

emulator=$build/tools/emulator/velmora-emulator
viewer=$build/tools/viewer/velmora-viewer
demo_dir=$build/demo
registry=$demo_dir/velmora-registry.json
snapshots=$build/snapshots
emulator_log=$demo_dir/emulator.log
lang=${VELMORA_LANG:-en}

if [ ! -x "$emulator" ]; then
  echo "demo: the device emulator is not built ($emulator); there is nothing to show yet."
  exit 0
fi
if [ ! -x "$viewer" ]; then
  echo "demo: the viewer is not built ($viewer); there is nothing to show yet."
  exit 0
fi

mkdir -p "$demo_dir"
rm -f "$registry"
: >"$emulator_log"
"$emulator" --port 0 --registry "$registry" >"$emulator_log" 2>&1 &
emulator_pid=$!
stop_emulator() {
  if kill -0 "$emulator_pid" 2>/dev/null; then
    kill "$emulator_pid" 2>/dev/null || true
    wait "$emulator_pid" 2>/dev/null || true
  fi
}
trap stop_emulator EXIT
trap 'exit 130' INT TERM

# Wait for the emulator's "listening on" line (and the registry it writes), 30 s at most.
for _ in $(seq 1 300); do
  if grep -q "listening on" "$emulator_log" && [ -s "$registry" ]; then
    break
  fi
  if ! kill -0 "$emulator_pid" 2>/dev/null; then
    echo "demo: the emulator stopped before it listened:" >&2
    cat "$emulator_log" >&2
    exit 1
  fi
  sleep 0.1
done
if ! grep -q "listening on" "$emulator_log"; then
  echo "demo: the emulator did not report \"listening on\" within 30 s:" >&2
  cat "$emulator_log" >&2
  exit 1
fi
echo "demo: $(grep -m1 "listening on" "$emulator_log")"
export VELMORA_REGISTRY=$registry
# Every device answer is logged whole at info level; the demo shows warnings and errors.
export VELMORA_LOG_LEVEL=${VELMORA_LOG_LEVEL:-warn}

if [ "$snapshot_only" -eq 0 ] && [ -n "${DISPLAY:-}" ]; then
  echo "demo: opening the fleet window on $("$viewer" --list | wc -l) emulated devices" \
       "(double-click a device for its status dialog; close the window to end the demo)"
  "$viewer" --lang "$lang"
else
  rm -rf "$snapshots"
  mkdir -p "$snapshots"
  echo "demo: no display; rendering every page of every emulated device (language: $lang)"
  QT_QPA_PLATFORM=offscreen "$viewer" --lang "$lang" --snapshot "$snapshots" --all --ap-view | grep -v '^wrote ' || true
  count=$(find "$snapshots" -name '*.png' | wc -l)
  echo "demo: $count page snapshots in $snapshots"
fi
