#!/usr/bin/env bash
# Runs every benchmark of a build. Usage: bench/run.sh FOLDER_OF_BINARIES
# The files are made in a temporary folder; set TMPDIR to measure another disk.
set -euo pipefail
binaries=${1:?usage: run.sh FOLDER_OF_BINARIES}

echo "load average: $(cut -d ' ' -f 1-3 /proc/loadavg), processors: $(nproc)"
echo "temporary files on: $(df --output=fstype,target "${TMPDIR:-/tmp}" | tail -n 1)"
echo
"$binaries"/evaluation_bench
echo
"$binaries"/settings_bench
echo
"$binaries"/whole_job_bench
echo
if [[ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
  export QT_QPA_PLATFORM=offscreen
fi
"$binaries"/window_bench
echo
echo "load average: $(cut -d ' ' -f 1-3 /proc/loadavg)"
