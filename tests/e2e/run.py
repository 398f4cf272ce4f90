#!/usr/bin/env python3
"""Runs the tests on a display: what no screen in memory can show.

Usage: run.py FOLDER-OF-THE-PROGRAMS [TEST...], such as: run.py build/asan/bin menu_test
Needs Xvfb, openbox, xdotool and wmctrl.
"""
import os
import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).parent

if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    os.environ["VORLANE_BIN"] = sys.argv.pop(1)
    sys.path.insert(0, str(HERE))
    modules = sorted(path.stem for path in HERE.glob("*_test.py"))
    unittest.main(module=None, argv=[sys.argv[0], *(sys.argv[1:] or modules)])
