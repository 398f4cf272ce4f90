#!/usr/bin/env bash
# Makes a folder of sample files to try operations on: nested folders, odd names, names that
# collide once they are changed. Usage: make_sample_folder.sh FOLDER (which must not exist)
set -euo pipefail
folder=${1:?usage: make_sample_folder.sh FOLDER}
mkdir "$folder"
cd "$folder"

file() { # file NAME...: a small file whose bytes tell its first name
  local name
  for name in "$@"; do
    mkdir -p "$(dirname "./$name")"
    printf 'This file was made as %q.\n' "$name" >"./$name"
  done
}

file 'Holiday photo 1.jpg' 'holiday_photo_2.JPG' 'HOLIDAY photo 3.jpeg'
file 'The Examples - First Song.txt' 'the examples - second song.txt'
file 'report draft.txt' 'report  draft.txt' 'Report Final.txt'
file 'one.two.three' 'README' '.hidden' 'semi;colon & more' 'bar|name.txt'
file $'line\nbreak.txt' $'not-UTF-8-\xe4.txt' 'überläufer.txt' '日本語.txt'
file 'Music/01 opening.txt' 'Music/02 second part.txt' 'Music/Live/01 opening.txt'
file 'Letters/2024/to somebody.txt' 'Letters/2025/to somebody.txt'
file 'read only.txt'
chmod a-w 'read only.txt'
