"""Lists a folder's files with their sizes in natural order, as a script would: scandir.py FOLDER"""

import os
import re
import sys


def files(folder):
    with os.scandir(folder) as entries:
        for entry in entries:
            if entry.is_dir(follow_symlinks=False):
                yield from files(entry.path)
            else:
                yield entry.path, entry.stat(follow_symlinks=False).st_size


def natural(item, digits=re.compile(r"(\d+)")):
    return [int(part) if part.isdigit() else part.casefold() for part in digits.split(item[0])]


sys.stdout.writelines(f"{size}\t{path}\n" for path, size in sorted(files(sys.argv[1]), key=natural))
