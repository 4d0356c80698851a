"""Looks at what a contender made, so that only like is compared with like."""

import hashlib
import json
import os
import subprocess
from pathlib import Path

from . import programs


def _files(folder: Path):
    for parent, _, names in os.walk(folder):
        for name in names:
            yield Path(parent) / name


def file_count(folder: Path) -> int:
    return sum(1 for _ in _files(folder))


def link_files(folder: Path, into: Path) -> None:
    for name in os.listdir(folder):
        os.link(folder / name, into / name)


def names(folder: Path) -> str:
    """How many files, under which names, with which contents."""
    found = sorted((path.name, path.read_bytes().hex()) for path in _files(folder))
    digest = hashlib.sha256(json.dumps(found).encode()).hexdigest()[:6]
    return f"{len(found)} files, names {digest}"


def _exiftool(folder: Path, *tags: str) -> list:
    if not programs.is_installed("exiftool"):
        return []
    command = ["exiftool", "-q", "-q", "-json", "-n", "-G1", "-r", *tags, str(folder)]
    answer = subprocess.run(command, capture_output=True, text=True, check=False).stdout
    return json.loads(answer) if answer.strip() else []


def dimensions(folder: Path) -> str:
    """How many pictures, of how many pixels in all; sides are sorted, since not everybody turns pictures upright."""
    found = []
    for entry in _exiftool(folder, "-ImageWidth", "-ImageHeight"):
        sides = sorted(value for key, value in entry.items() if key.endswith(("ImageWidth", "ImageHeight")))
        found.append((Path(entry["SourceFile"]).stem, *sides))
    digest = hashlib.sha256(json.dumps(sorted(found)).encode()).hexdigest()[:6]
    return f"{file_count(folder)} pictures, sizes {digest}"


def listed_files(log: Path) -> int:
    """The number of files in a listing: our JSON, or one line for each."""
    text = log.read_text(errors="surrogateescape")
    if text.startswith("{"):
        return len(json.loads(text)["files"])
    return text.count("\n")


def still_located(folder: Path) -> str:
    located = _exiftool(folder, "-GPS*", "-XMP:GPS*", "-City")
    traces = sum(1 for entry in located if any("GPS" in key or "City" in key for key in entry))
    return f"{traces} still tell the place"


HARMLESS = ("IFD0:Orientation", "JFIF:", "ICC", "System:", "File:", "Composite:", "ExifTool:", "SourceFile", "Adobe:")
# Tags that an EXIF block with nothing but the orientation must hold.
REQUIRED = ("Resolution", "ResolutionUnit", "YCbCrPositioning", "ExifVersion", "ComponentsConfiguration", "FlashpixVersion", "ColorSpace")


def still_hidden(folder: Path) -> str:
    entries = _exiftool(folder)
    telling = sum(1 for entry in entries if any(not key.startswith(HARMLESS) and not key.endswith(REQUIRED) for key in entry))
    upright = sum(1 for entry in entries if "IFD0:Orientation" in entry)
    return f"{telling} still tell something, {upright} keep their orientation"


def page_count(file: Path) -> int:
    answer = subprocess.run(["qpdf", "--show-npages", str(file)], capture_output=True, text=True, check=False).stdout
    return int(answer) if answer.strip() else 0


def bookmark_count(file: Path) -> int:
    """As an independent reader lists them."""
    answer = subprocess.run(["mutool", "show", str(file), "outline"], capture_output=True, text=True, check=False).stdout
    return len(answer.splitlines())
