#!/usr/bin/env bash
# Every check and every test of the project, in one go. The last line counts them:
# a static check counts as one, a test program as the number of its tests.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LSAN_OPTIONS="suppressions=$PWD/tests/leaks.supp:print_suppressions=0"
passed=0
failed=0

check() { # check NAME COMMAND...
  local name=$1 log
  shift
  log=$(mktemp)
  if "$@" >"$log" 2>&1; then
    passed=$((passed + 1))
    echo "ok      $name"
  else
    failed=$((failed + 1))
    cat "$log"
    echo "FAILED  $name"
  fi
  rm -f "$log"
}

test_programs() { # test_programs PROGRAM...: GoogleTest programs, side by side
  local logs program
  logs=$(mktemp -d)
  for program in "$@"; do
    (
      "$program" --gtest_brief=1 >"$logs/${program##*/}" 2>&1
      echo $? >"$logs/${program##*/}.status"
    ) &
  done
  wait
  for program in "$@"; do
    cat "$logs/${program##*/}"
    count_tests "$program" "$logs/${program##*/}"
  done
  rm -rf "$logs"
}

count_tests() { # count_tests PROGRAM LOG: by the last lines that it printed
  local status ran good bad
  status=$(cat "$2.status")
  ran=$(sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' "$2")
  good=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}\.$/\1/p' "$2")
  bad=$((${ran:-0} - ${good:-0}))
  # A program that ended early, or counted nothing, is a failure whatever it printed.
  if ((bad == 0)) && { ((status != 0)) || ((${ran:-0} == 0)); }; then
    bad=1
  fi
  ((bad == 0)) || echo "FAILED  $1 ended with status $status"
  passed=$((passed + ${good:-0}))
  failed=$((failed + bad))
}

e2e_tests() { # e2e_tests FOLDER-OF-THE-PROGRAMS: counted by the line of Python's unittest
  local log status count bad
  log=$(mktemp)
  python3 tests/e2e/run.py "$1" 2>&1 | tee "$log"
  status=${PIPESTATUS[0]}
  count=$(sed -n 's/^Ran \([0-9]*\) tests\{0,1\} in .*/\1/p' "$log")
  bad=$(sed -n 's/^FAILED (//p' "$log" | tr -cs '0-9' '\n' | awk '{n += $1} END {print n + 0}')
  rm -f "$log"
  if { ((status != 0 && bad == 0)); } || [[ -z "$count" ]]; then
    bad=$((bad + 1))
    echo "FAILED  tests on a display ended with status $status"
  fi
  passed=$((passed + ${count:-0} - (bad < ${count:-0} ? bad : ${count:-0})))
  failed=$((failed + bad))
}

build() { # build PRESET
  cmake --preset "$1" && cmake --build --preset "$1"
}

# Every fuzz target, once over each input that is kept for it.
replay() { # replay PRESET
  local bin=build/$1/bin seeds target
  for target in "$bin"/*_replay; do
    case $(basename "$target") in
    id3v2_write*) seeds=fuzz/corpus/id3v2_write ;;
    id3*) seeds=tests/data/id3 ;;
    exif*) seeds=tests/data/exif ;;
    catalogue*) seeds="fuzz/corpus/catalogue data" ;;
    keyword_list*) seeds="fuzz/corpus/keyword_list data" ;;
    *) seeds=fuzz/corpus/$(basename "$target" _replay) ;;
    esac
    # shellcheck disable=SC2086  # several folders
    check "$(basename "$target") over $seeds" "$target" $seeds
  done
}

sources() { git ls-files -z --cached --others --exclude-standard "$@"; }

format_is_kept() { sources '*.h' '*.cpp' | xargs -0 clang-format --dry-run -Werror; }

# The sources of the window and the script tool many at a time, as they were compiled: reading their
# headers takes longest.
lint_is_clean() {
  {
    find build/asan/src -name 'unity_*.cxx' -print0
    sources 'src/*.cpp' | grep -zv -e '/win32_' -e '^src/ui/' -e '^src/cli/'
    sources src/ui/main.cpp
  } | xargs -0 -n 2 -P "$(nproc)" clang-tidy -p build/asan --quiet \
    2> >(grep -v 'warnings generated')
}

check "includes point one way" tools/check_includes.sh
check "formatting" format_is_kept
check "docs/operations.md is up to date" tools/make_operations_doc.py --check
for preset in core asan; do
  check "build $preset" build "$preset"
  test_programs build/"$preset"/bin/{cli,core}_tests
done
test_programs build/asan/bin/gui_tests
# What ./dev run builds.
check "build release" build release
e2e_tests build/asan/bin
replay asan
check "lint" lint_is_clean

echo "$passed passed, $failed failed"
((failed == 0))
