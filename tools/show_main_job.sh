#!/usr/bin/env bash
# The main job on a sample folder, without a display: operations previewed, carried out and undone
# on real files. Usage: show_main_job.sh FOLDER-OF-THE-PROGRAMS
set -euo pipefail
bin=$(cd "${1:?usage: show_main_job.sh FOLDER-OF-THE-PROGRAMS}" && pwd)
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$tools/make_sample_folder.sh" "$work/sample"
cd "$work"

say() { printf '\n== %s\n' "$*"; }
# Refused rows are part of the show; anything but "some were refused" ends it.
vorlane() {
  printf '$ vorlane-cli %s\n' "${*@Q}"
  "$bin/vorlane-cli" "$@" || (($? == 1))
}
listing() { (cd sample && find . -printf '%P %s\n' | sort); }

listing >before
say "The sample folder"
vorlane list sample --recursive
say "What title case would do"
vorlane preview sample --operation 'Case/Title Case'
say "Title case, carried out: every change goes into a journal"
vorlane apply sample --operation 'Case/Title Case'
say "Undo: the journal read backwards"
vorlane undo sample
say "Sorting into folders by extension, with an operation written by hand"
vorlane apply sample --code '<CREATEFOLDER>by type\<EXTONLY></CREATEFOLDER>' \
  --code '<MOVE>by type\<EXTONLY></MOVE>' --wildcard '*.*'
say "The folder now"
(cd sample && find . -type d | sort)
say "Undo"
vorlane undo sample | tail -n 3
listing >after
say "Compared with the beginning"
cmp before after && echo "Every file is back under its old name, byte for byte."
