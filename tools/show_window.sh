#!/usr/bin/env bash
# The main job in the window, on a sample folder that goes when the window is closed.
# Usage: show_window.sh FOLDER-OF-THE-PROGRAMS
set -euo pipefail
bin=$(cd "${1:?usage: show_window.sh FOLDER-OF-THE-PROGRAMS}" && pwd)
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$tools/make_sample_folder.sh" "$work/sample"
echo "The window opens on $work/sample: pick an operation below the folder tree and press Go." >&2
"$bin/vorlane" "$work/sample"
