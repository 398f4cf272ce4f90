#!/usr/bin/env python3
"""Writes docs/operations.md from the operations that are shipped and from their samples.

    tools/make_operations_doc.py            writes the page
    tools/make_operations_doc.py --check    only says whether the page is up to date

The samples are those that the tests run on real files (tests/data/operations/samples.txt tells
their form), so the page shows what the program does.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/operations.md"

INTRODUCTION = """# The operations

<!-- Made by tools/make_operations_doc.py; change data/Operations.ini or its samples instead. -->

Pick an operation in the tree, fill its boxes, look at the new names, press Go. Every example below is
a test that runs on real files, with the boxes as a new user finds them unless the example says
otherwise.

Boxes are remembered where nothing else is said. A box that the program fills for each file has a
check box: tick it to type a text that then counts for every file.

A name that is taken gets a number in front: `(1)song.mp3`. Dates and times are those of the United
States whatever the system says, month/day/year and AM or PM; the operations turn them into
year-month-day. In the boxes you can use all of [the tag language](tag-language.md).

Undo takes back names, moves and new folders completely. Tags it can't always take back; the
operations that write them say so:

- **some genres**: a genre that is written as a word (`Rock`) and not as a number becomes number 0,
  and so does any genre of a tag without a comment;
- **3/12 tracks**: a track that says how many there are becomes 00, and a track 5 becomes 05;
- **foreign letters**: a letter that Windows-1252 lacks, such as a Cyrillic one, becomes `?`;
- **cut data**: a tag keeps its size, so a longer text pushes out what no longer fits behind it;
- **new tags and fields**: a file that had no ID3v2 tag keeps one, with empty fields, and names that
  are made from tags no longer see its ID3v1 tag behind it; a tag that lacked a field keeps an empty
  one.
"""


def read_catalogue():
    """The blocks of the file: depth, title, and the lines of the body as (key, value)."""
    text = (ROOT / "data/Operations.ini").read_text("ascii")
    for block in text.split("Operation Name:")[1:]:
        header, *lines = block.splitlines()
        title = header.lstrip("\t")
        pairs = [re.match(r"([A-Za-z ]+): ?(.*)", line).groups() for line in lines if line]
        yield len(header) - len(title), title, pairs


def boxes_of(pairs):
    columns = [[value for key, value in pairs if key == name]
               for name in ("Box Name", "Box Display", "Box ToolTip", "Box Check")]
    count = len(columns[0])
    return list(zip(*(column or [""] * count for column in columns)))


def unquote(text):
    """The text of a quoted word, its quotes included; bytes that aren't UTF-8 as \\xNN."""
    return re.sub(r"\\([^x])", r"\1", text[1:-1])


TRAITS = r'\{(?:[^}"]|"(?:[^"\\]|\\.)*")*\}'
QUOTED = r'"(?:[^"\\]|\\.)*"'
ENTRY = re.compile(rf"({QUOTED})\s*({TRAITS})?\s*(=>|->)\s*(same|{QUOTED})\s*({TRAITS})?")
EXIF = {"272": "camera", "306": "taken", "36867": "taken", "40962": "width", "40963": "height"}


def traits_in_words(traits):
    """{v2 artist "x"} as text for a reader; empty for none."""
    words = re.findall(rf"{QUOTED}|[^\s{{}}]+", traits or "")
    parts = []
    version = ""
    i = 0
    while i < len(words):
        word = words[i]
        if word in ("v1", "v2"):
            version = "ID3" + word
            parts.append(version)
            i += 1
        elif word == "none":
            parts[-1] = f"no {version}"
            i += 1
        elif word == "folder":
            parts.append("folder")
            i += 1
        elif word == "exif":
            value = words[i + 2].strip('" ')
            if words[i + 1] in ("36867", "306"):
                value = value[:10].replace(":", "-") + value[10:]
            parts.append(f"{EXIF[words[i + 1]]} {value}")
            i += 3
        else:
            value = words[i + 1] if version or word == "changed" else words[i + 1].strip('"')
            value = value.strip('"') if word in ("changed", "track", "year", "genre") else value
            unit = {"size": " bytes", "kbit": " kbit/s"}.get(word, "")
            name = {"kbit": "bit rate", "changed": "last change"}.get(word, word)
            parts.append(f"{name} {value}{unit}")
            i += 2
    return ", ".join(parts)


def cell(name, traits):
    words = traits_in_words(traits)
    # A code span would lose spaces at its ends and hold no bars.
    shown = f"`{name}`" if name == name.strip() else f"`\"{name}\"`"
    return shown.replace("|", "\\|") + (f" ({words})" if words else "")


def read_samples():
    """By operation: a list of (settings, rows), each row a line of the table."""
    samples = {}
    for line in (ROOT / "tests/data/operations/samples.txt").read_text("utf-8").splitlines():
        if line.startswith("["):
            current = ([], [])
            samples.setdefault(line[1:-1], []).append(current)
        elif match := re.match(rf"box (\d) ({QUOTED})", line):
            current[0].append(f"`{unquote(match[2])}` in box {match[1]}")
        elif match := re.match(rf"today ({QUOTED})", line):
            current[0].append(f"the run on {unquote(match[1])}")
        elif match := re.match(rf"only ({QUOTED})", line):
            current[0].append(f"`{unquote(match[1])}` selected, one file at a time")
        elif match := ENTRY.match(line):
            before, facts, arrow, after, changes = match.groups()
            if arrow == "=>":
                stays = after == "same" and not changes
                right = "stays as it is" if stays else cell(
                    unquote(before if after == "same" else after), changes)
                current[1].append(f"| {cell(unquote(before), facts)} | {right} |")
    return samples


def describe_box(number, box):
    caption, display, tip, check = box
    if display.startswith("Registry("):
        default = display[len("Registry("):-1].partition("|")[2]
        text = f"at first `{default}`" if default.strip() == default else f'at first `"{default}"`'
        text = text if default else "at first empty"
    elif check:
        text = "filled for each file"
    else:
        text = "filled for each file, to be changed"
    tip = "" if tip in ("", "Tick to change") else f". {tip}"
    return f"- box {number}, **{caption}**: {text}{tip}"


def describe_operation(depth, title, pairs, samples):
    keys = dict(pairs)
    yield "#" * (depth + 1) + " " + title
    yield ""
    wildcard = f" Lists `{keys['Wildcard']}`." if "Wildcard" in keys else ""
    yield keys["Help Message"].replace("<", "\\<") + wildcard
    yield ""
    boxes = boxes_of(pairs)
    for number, box in enumerate(boxes, 1):
        yield describe_box(number, box).replace(" <", " \\<")
    if boxes:
        yield ""
    for settings, rows in samples:
        if rows:
            yield "| " + ("before, with " + ", ".join(settings) if settings else "before") + " | after |"
            yield "|---|---|"
            yield from rows
            yield ""


def make_page():
    samples = read_samples()
    blocks = list(read_catalogue())
    lines = [INTRODUCTION, "## The tree", ""]
    lines += ["  " * (depth - 1) + "- " + (title if pairs else f"**{title}**")
              for depth, title, pairs in blocks]
    lines.append("")
    path = []
    for depth, title, pairs in blocks:
        path = path[:depth - 1] + [title]
        if pairs:
            lines += describe_operation(depth, title, pairs, samples["/".join(path)])
        else:
            lines += ["#" * (depth + 1) + " " + title, ""]
    return "\n".join(lines).rstrip("\n") + "\n"


def main():
    page = make_page()
    if sys.argv[1:] == ["--check"]:
        if PAGE.read_text("utf-8") != page:
            sys.exit(f"{PAGE.relative_to(ROOT)} is out of date: run tools/make_operations_doc.py")
    elif sys.argv[1:]:
        sys.exit(__doc__)
    else:
        PAGE.write_text(page, "utf-8")


if __name__ == "__main__":
    main()
