"""Gives every file of a folder a new name, as a script would: rename.py FOLDER PATTERN, as in "Goa trip %04d.jpg"."""

import os
import sys

folder, pattern = sys.argv[1:]
for number, name in enumerate(sorted(os.listdir(folder)), 1):
    os.rename(os.path.join(folder, name), os.path.join(folder, pattern % number))
