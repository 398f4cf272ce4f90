#!/usr/bin/env bash
# Keeps the rooms of src/ apart: an include may only point to a room further down this list, the
# core knows no window toolkit, and only platform/ and net/ know the operating system.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

rooms=(platform metadata engine form preview filelist catalogue batch layout shell net cli ui)
system_headers='sys/|unistd\.h|fcntl\.h|dirent\.h|signal\.h|netdb\.h|netinet/|arpa/|ifaddrs\.h|net/if\.h|poll\.h|spawn\.h|windows\.h|winsock'
bad=0

complain() {
  echo "$1"
  bad=1
}

rank() {
  local i
  for i in "${!rooms[@]}"; do
    [[ "${rooms[$i]}" == "$1" ]] && echo "$i" && return
  done
  echo -1
}

for folder in src/*/; do
  room=$(basename "$folder")
  own=$(rank "$room")
  ((own >= 0)) || complain "src/$room is not in the list of rooms"
  while IFS=: read -r file line text; do
    target=$(sed -E 's/.*"([^"/]+)\/.*/\1/' <<<"$text")
    other=$(rank "$target")
    ((other >= 0 && other <= own)) || complain "$file:$line: $room may not include $target"
  done < <(grep -nHE '^#include "[^"/]+/' -r "$folder" || true)
done

for room in "${rooms[@]}"; do
  [[ -d "src/$room" ]] || continue
  if [[ "$room" != ui ]]; then
    hits=$(grep -nE '^#include <Q[A-Z]' -r "src/$room" || true)
    [[ -z "$hits" ]] || complain "the core includes the window toolkit: $hits"
  fi
  [[ "$room" == platform || "$room" == net ]] && continue
  hits=$(grep -nE "^#include <($system_headers)" -r "src/$room" || true)
  [[ -z "$hits" ]] || complain "only platform and net may know the system: $hits"
done

exit $bad
