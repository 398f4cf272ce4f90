#!/usr/bin/env bash
# Makes the small MP3 files of tests/data/id3, each named after what is special or broken in it.
# Usage: tools/make_id3_corpus.sh [FOLDER]
set -eu
export LC_ALL=C
folder=${1:-$(dirname "${BASH_SOURCE[0]}")/../tests/data/id3}
mkdir -p "$folder"
rm -f "$folder"/*.mp3

# Bytes are written in printf's escapes; a file is what its command prints.
file() { "${@:2}" >"$folder/$1.mp3"; }
nuls() { head -c "$1" /dev/zero; }
letters() { nuls "$1" | tr '\0' "$2"; }
byte() { printf "\\x$(printf %02x "$1")"; }
padded() { # padded LENGTH COMMAND...: what it prints, with NULs up to that length
  { "${@:2}" && nuls "$1"; } | head -c "$1"
}

header() { # header SIZE
  printf 'ID3\x03\0\0' && byte $(($1 >> 21 & 127)) && byte $(($1 >> 14 & 127)) &&
    byte $(($1 >> 7 & 127)) && byte $(($1 & 127))
}
raw_frame() { # raw_frame ID SIZE TEXT [ENCODING]
  printf '%s\0\0\0' "$1" && byte "$2" && printf '\0\0' && byte "${4:-0}" && printf "$3"
}
frame() { # frame ID TEXT [ENCODING]
  raw_frame "$1" $(($(printf "$2" | wc -c) + 1)) "$2" "${3:-0}"
}
comment() { frame COMM "eng\\0$1"; }
tag() { # tag SIZE COMMAND...: a header and what the command prints, padded
  header "$1" && padded $(($1 - 10)) "${@:2}"
}
v1() { # v1 TITLE ARTIST ALBUM YEAR COMMENT TRACK GENRE
  printf TAG && padded 30 printf "$1" && padded 30 printf "$2" && padded 30 printf "$3" &&
    padded 4 printf "$4" && padded 29 printf "$5" && byte "$6" && byte "$7"
}
audio() { # 400 bytes: a frame header of 128 kbit/s and no other
  printf '\xff\xfb\x94\x64' && letters 396 '\252'
}

# ID3v1
v1_plain() { v1 Title Artist Album 1999 Note 7 17; }
v1_behind_audio() { audio && v1_plain; }
v1_127_bytes() { v1_plain | head -c 127; }
v1_not_at_the_end() { v1_plain && printf x; }
v1_old_layout() { v1 Title Artist Album 1999 12345678901234567890123456789 65 17; }
v1_spaces_and_nuls() { v1 '  Title  ' ' Artist \0junk' '\0Album' ' 99 ' ' \0x' 200 255; }
v1_track_zero() { v1 Title Artist Album 1999 Note 0 0; }
file v1-plain v1_plain
file v1-behind-audio v1_behind_audio
file v1-of-127-bytes v1_127_bytes
file v1-not-at-the-end v1_not_at_the_end
file v1-comment-of-30-in-the-older-layout v1_old_layout
file v1-spaces-and-nuls v1_spaces_and_nuls
file v1-track-zero v1_track_zero

# ID3v2: whole tags
all_frames() {
  frame TPE1 Artist && frame TIT2 Title && frame TALB Album && frame TRCK 7 && frame TYER 1999 &&
    comment Note && frame TCON '(17)'
}
v2_plain() { tag 500 all_frames && audio; }
v2_both_tags() { v2_plain && v1 One Two Three 2000 Four 5 6; }
v2_frames_behind_the_end() { header 20 && nuls 100 && all_frames; }
v2_standard_size() { header 137 && all_frames && padded 27 printf padding && audio; }
v2_header_alone() { header 300; }
v2_three_letters() { printf ID3; }
v2_size_zero() { header 0 && audio; }
v2_size_past_the_end() { printf 'ID3\x03\0\0\x7f\x7f\x7f\x7f' && frame TPE1 Artist; }
v2_size_byte_with_its_upper_bit() { printf 'ID3\x03\0\0\x85\0\x80\xff' && frame TCON '(17)'; }
v2_cut_inside_a_frame() { header 300 && frame TPE1 Artist && frame TIT2 Title | head -c 14; }
v2_frame_without_a_size_byte() { header 300 && nuls 284 && printf 'TPE1\0\0\0'; }
v2_new() {
  tag 257 eval "frame TPE1 '' && frame TIT2 '' && frame TALB '' && comment '' && frame TYER '' &&
    frame TRCK '' && raw_frame TCON 5 '($1)'"
}
file v2-plain v2_plain
file v2-and-v1 v2_both_tags
file v2-size-20-with-frames-behind-it v2_frames_behind_the_end
file v2-size-without-the-header v2_standard_size
file v2-header-alone v2_header_alone
file v2-three-letters v2_three_letters
file v2-size-zero v2_size_zero
file v2-size-far-past-the-end v2_size_past_the_end
file v2-size-bytes-with-their-upper-bit v2_size_byte_with_its_upper_bit
file v2-cut-inside-a-frame v2_cut_inside_a_frame
file v2-frame-without-a-size-byte v2_frame_without_a_size_byte
file v2-new-genre-5 v2_new 5
file v2-new-genre-17 v2_new 17
file v2-new-genre-123 v2_new 123

# ID3v2: sizes of frames
large_artist() { printf 'TPE1\0\0\0\xff\0\0\0' && letters 254 a; }
larger_artist() { printf 'TPE1\0\0\x01\0\0\0\0' && letters 255 a && frame TIT2 Title; }
frame_in_a_frame() { raw_frame TIT2 20 '' && frame TPE1 inside && frame TPE1 behind; }
file v2-artist-of-255-bytes tag 500 large_artist
file v2-artist-of-256-bytes tag 500 larger_artist
file v2-artist-of-size-1 tag 300 raw_frame TPE1 1 Artist
file v2-artist-of-size-0 tag 300 raw_frame TPE1 0 Artist
file v2-frame-inside-a-frame tag 300 frame_in_a_frame

# ID3v2: genres
genre() { # genre COMMENT GENRE
  comment "$1" && frame TCON "$2"
}
file v2-genre-with-a-longer-comment tag 300 genre abcd '(17)'
file v2-genre-cut-by-an-empty-comment tag 300 genre '' '(123)'
file v2-genre-without-a-comment tag 300 frame TCON '(17)'
file v2-genre-empty tag 300 genre Note '()'
file v2-genre-without-brackets tag 300 genre Note Rock
file v2-genre-in-letters tag 300 genre Note '(a)'
file v2-genre-behind-any-character tag 300 genre Note 'x17)'
file v2-genre-of-99999 tag 300 genre Comment '(99999)'

# ID3v2: texts
utf16_marked() { frame TIT2 '\xff\xfeA\0B\0' 1 && frame TALB '\xff\xfeA\0B\0' 1; }
utf16_kana() { frame TPE1 '\xff\xfe\xe5\x65\x2c\x67' 1 && frame TIT2 '\xff\xfe\xe5\x65A\0' 1; }
code_page() { frame TPE1 '\xe4\x80\x81' && frame TIT2 '\xff'; }
file v2-utf16-with-mark tag 300 utf16_marked
file v2-utf16-without-mark tag 300 frame TIT2 'A\0B\0'
file v2-utf16-big-endian tag 300 frame TIT2 '\xfe\xff\0A\0B' 2
file v2-utf16-without-a-nul tag 300 utf16_kana
file v2-title-of-5-letters-and-nul tag 300 frame TIT2 'Hello\0'
file v2-title-of-4-letters-and-nul tag 300 frame TIT2 'Four\0'
file v2-track-3-of-12 tag 300 frame TRCK 3/12
file v2-track-123 tag 300 frame TRCK 123
file v2-comment-with-a-description tag 300 frame COMM 'engabc\0text'
file v2-characters-of-the-code-page tag 300 code_page

# Audio frames
far_frame() { nuls 12000 && audio; }
variable_rate() { printf '\xff\xfb\x50\x64' && nuls 32 && printf 'Xing\0\0\0\x01\0\0\0\x09' && audio; }
pair_in_a_tag() { tag 300 frame TPE1 'a\xff\xfb\x50' && audio; }
other_frames() { printf '\xff\xf3\x94\xff\xe3\x94\xff\xfd\x94' && nuls 100; }
file frame-128-kbit audio
file frame-index-15 printf '\xff\xfa\xf0\x64'
file frame-cut-behind-two-bytes printf '\xff\xfb'
file frame-behind-12000-bytes far_frame
file frame-of-variable-rate variable_rate
file frame-pair-inside-a-tag pair_in_a_tag
file frame-of-other-kinds other_frames
file empty printf ''
