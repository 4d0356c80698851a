"""Folders full of small files."""

import random
import shutil
from pathlib import Path


def camera(cache: Path, files: int) -> Path:
    """One folder of small files, numbered as cameras do."""
    root = cache / f"camera-{files}"
    if root.is_dir():
        return root
    unfinished = root.with_name(root.name + ".unfinished")
    shutil.rmtree(unfinished, ignore_errors=True)
    unfinished.mkdir(parents=True)
    for number in range(1, files + 1):
        (unfinished / f"IMG_{number:04}.jpg").write_bytes(b"%d" % number)
    unfinished.rename(root)
    return root


def tree(cache: Path, folders: int, files_each: int, largest: int) -> Path:
    """`folders` folders of `files_each` files of up to `largest` bytes, with the names cameras and people give."""
    root = cache / f"tree-{folders}x{files_each}-{largest}"
    if root.is_dir():
        return root
    unfinished = root.with_name(root.name + ".unfinished")
    shutil.rmtree(unfinished, ignore_errors=True)
    chance = random.Random(9)
    content = chance.randbytes(largest)
    # All of kinds that every scan takes, so that all find the same.
    patterns = ("IMG_{}.jpg", "Scan {}.png", "Photo {} copy.jpeg", "shot-{}.webp", "DSC{}.tiff")
    for number in range(folders):
        folder = unfinished / f"Roll {number // 50 + 1}" / f"Day {number + 1}"
        folder.mkdir(parents=True)
        for index in range(files_each):
            name = patterns[index % len(patterns)].format(index + 1)
            (folder / name).write_bytes(content[: chance.randint(1, largest)])
    unfinished.rename(root)
    return root
