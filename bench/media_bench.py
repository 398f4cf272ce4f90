#!/usr/bin/env python3
"""Names files from what is in them, with vorlane-cli and with Debian's own small tools, side by side.

Usage: bench/media_bench.py VORLANE_CLI [FILES]

Each tool runs as a whole program, with its start, on a fresh copy of the files of its own, all in one
run; vorlane-cli with its preview, its checks and its journal. The processor time is that of the
program and of the system on its behalf. A ratio above 1 means that vorlane-cli is faster.
"""

import os
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from make_media import make_files, photo, photo_date, song, song_names

ROUNDS = 5
TOO_SLOW_TO_REPEAT = 20  # seconds


class Job:
    """What is to be done, and by which commands; each is run in the folder of the files."""

    def __init__(self, what, name, content, expected, tools):
        self.what = what
        self.name = name
        self.content = content
        self.expected = expected  # the new name of a file, but for the date's form
        self.tools = tools


def songs(program):
    return Job(
        "MP3 files named from their tags", "track{:05}.mp3", song,
        lambda number: " - ".join(song_names(number)) + ".mp3",
        {
            "vorlane-cli apply": lambda files: [
                program, "apply", ".", "--code", "<ARTIST> - <TITLE><EXTONLY>"],
            "id3ren": lambda files: [
                "id3ren", "-nocfg", "-quiet", "-template=%a - %s.mp3", *files],
            "eyeD3": lambda files: ["eyeD3", "-Q", "--rename", "$artist - $title", "."],
        })


def photos(program):
    form = "%Y-%m-%d %H-%M-%S"
    return Job(
        "JPEG files named from their EXIF date", "photo{:05}.jpg", photo,
        lambda number: photo_date(number).strftime(form) + ".jpg",
        {
            "vorlane-cli apply": lambda files: [
                program, "apply", ".", "--code",
                "<REPLACE><REPLACE><IMAGEEXIFTAG>DateTimeOriginal</IMAGEEXIFTAG>|/|-|</REPLACE>"
                "|:|-|</REPLACE><EXTONLY>"],
            "jhead": lambda files: ["jhead", "-q", "-n" + form, *files],
            "exiv2": lambda files: ["exiv2", "-q", "-F", "-r", form, "rename", *files],
            "exiftool": lambda files: [
                "exiftool", "-q", "-d", form + ".%%e", "-FileName<DateTimeOriginal", "."],
        })


def run(command, folder):
    """Elapsed and processor seconds."""
    os.sync()
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    start = time.monotonic()
    subprocess.run(command, cwd=folder, check=True, stdin=subprocess.DEVNULL,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    elapsed = time.monotonic() - start
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return elapsed, after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def require_names(job, tool, folder, count):
    wanted = {job.expected(number) for number in range(count)}
    found = {path.name for path in folder.iterdir()} - {"UNDORENAME.TXT"}
    if found != wanted:
        sys.exit(f"{tool} didn't do the job: {sorted(found - wanted)[:3]}")


def measure(job, count, place):
    master = place / "master"
    make_files(master, count, job.name, job.content)
    files = sorted(path.name for path in master.iterdir())
    times = {tool: [] for tool in job.tools}
    for _ in range(ROUNDS):
        for tool, command in job.tools.items():
            if any(elapsed > TOO_SLOW_TO_REPEAT for elapsed, _ in times[tool]):
                continue
            copy = place / "copy"
            shutil.copytree(master, copy)
            times[tool].append(run(command(files), copy))
            require_names(job, tool, copy, count)
            shutil.rmtree(copy)
    shutil.rmtree(master)
    return times


def median(times, which):
    return statistics.median(each[which] for each in times)


def report(job, count, times):
    heading = f"{count} {job.what}"
    print(f"{heading:<48} median  (least to most)     processor   ratio (processor)")
    own = next(iter(times.values()))
    for tool, own_times in times.items():
        elapsed = [each[0] for each in own_times]
        print(f"  {tool:<44} {median(own_times, 0):7.3f} s"
              f"  ({min(elapsed):.3f} to {max(elapsed):.3f})  {median(own_times, 1):7.3f} s"
              f"  {median(own_times, 0) / median(own, 0):6.2f} x"
              f"  ({median(own_times, 1) / median(own, 1):.2f} x)", flush=True)
    print()


def main():
    program = str(Path(sys.argv[1]).resolve())
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 10000
    for job in (songs(program), photos(program)):
        with tempfile.TemporaryDirectory(prefix="vorlane-media-") as place:
            report(job, count, measure(job, count, Path(place)))


main()
