#!/usr/bin/env bash
# Writes src/platform/letter_case_table.inc: the simple case mappings of the characters up to
# U+FFFF, as ranges of characters with the same offset. Reads UnicodeData.txt of Debian's package
# unicode-data, or another file that is named as the argument.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

table=src/platform/letter_case_table.inc
data=${1:-/usr/share/unicode/UnicodeData.txt}

# ranges FIELD: the ranges of one mapping; UnicodeData.txt has upper case in field 13, lower case
# in field 14. Alphabets whose cases alternate give ranges with a step of 2.
ranges() {
  awk -F';' -v field="$1" '
    function number(hex,  i, value) {
      value = 0
      for (i = 1; i <= length(hex); i++)
        value = value * 16 + index("0123456789ABCDEF", substr(hex, i, 1)) - 1
      return value
    }
    function flush() {
      if (last) printf "    {0x%04X, 0x%04X, %d, %d},\n", first, last, step ? step : 1, offset
    }
    length($1) == 4 && $field != "" {
      if (length($field) > 4) { print "mapping leaves 16 bits: " $1 > "/dev/stderr"; exit 1 }
      code = number($1)
      gap = code - last
      if (last && number($field) - code == offset && (step ? gap == step : gap <= 2)) {
        step = gap
      } else {
        flush()
        first = code
        offset = number($field) - code
        step = 0
      }
      last = code
    }
    END { flush() }' "$data"
}

{
  echo "// Made by tools/make_letter_case_table.sh; not to be edited."
  echo "// First character, last character, step from one to the next, offset of its other case."
  echo "constexpr CaseRange UpperRanges[] = {"
  ranges 13
  echo "};"
  echo "constexpr CaseRange LowerRanges[] = {"
  ranges 14
  echo "};"
} >"$table.new"
mv "$table.new" "$table"
