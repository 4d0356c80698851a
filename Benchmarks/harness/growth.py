"""Ten times the files: what does each step cost for one of them?"""

import json
import os
import shutil
import statistics
import subprocess
from pathlib import Path

# Bytes a file, over all up to the written activity entry.
WANTED_BYTES = 2048
MEMORY_UP_TO = "activity entry"


def _run(program: Path, files: Path, work: Path) -> dict:
    home, output = work / "home", work / "output"
    for folder in (home, output):
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
    os.sync()
    environment = {"PATH": os.environ["PATH"], "HOME": str(home), "LC_ALL": "C.UTF-8"}
    return json.loads(subprocess.run([program, files, output, "2"], env=environment, check=True, capture_output=True).stdout)


def table(program: Path, small: tuple, large: tuple, runs: int, work: Path) -> str:
    """`small` and `large` are a number of files and the folder of them."""
    measured = {count: [_run(program, files, work) for _ in range(runs)] for count, files in (small, large)}
    counts = [small[0], large[0]]

    def microseconds(step, count):
        return statistics.median(run[step]["seconds"] for run in measured[count]) / count * 1e6

    def peak(step, count):
        return statistics.median(run[step]["peakBytes"] for run in measured[count])

    lines = [
        "### ten times the files (`growth`)",
        "",
        f"| step | a file of {counts[0]:,} | a file of {counts[1]:,} | ratio | peak memory by then | of which for each more file |",
        "|---|---:|---:|---:|---:|---:|",
    ]
    for step in measured[counts[0]][0]:
        first, second = (microseconds(step, count) for count in counts)
        more = (peak(step, counts[1]) - peak(step, counts[0])) / (counts[1] - counts[0])
        wanted = f" (wanted < {WANTED_BYTES})" if step == MEMORY_UP_TO else ""
        lines.append(
            f"| {step} | {first:.1f} µs | {second:.1f} µs | {second / first:.2f} "
            f"| {peak(step, counts[1]) / 2**20:.0f} MiB | {more:.0f} bytes{wanted} |"
        )
    return "\n".join(lines) + "\n"
