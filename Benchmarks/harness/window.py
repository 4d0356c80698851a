"""The window beside one with nothing in it: how long until its first frame, and what it takes while nobody does anything."""

import os
import shutil
import statistics
import subprocess
import time
from pathlib import Path

WANTED_RATIO = 1.5
WANTED_IDLE = 0.0
# Seconds: the mascot breathes for a while after the start, and then rests.
BEFORE_IDLE, IDLE = 25, 20
PATIENCE = 30


def _environment(work: Path) -> dict:
    home, runtime = work / "home", work / "run"
    shutil.rmtree(home, ignore_errors=True)
    for folder in (home, runtime):
        folder.mkdir(parents=True, exist_ok=True)
    runtime.chmod(0o700)
    kept = {name: os.environ[name] for name in ("PATH", "DISPLAY", "XAUTHORITY", "QT_QPA_PLATFORM", "QT_QUICK_BACKEND") if name in os.environ}
    return kept | {"HOME": str(home), "XDG_RUNTIME_DIR": str(runtime), "LC_ALL": "C.UTF-8", "TAMBLE_FIRST_FRAME": "1"}


def _end(process) -> None:
    process.terminate()
    process.wait(PATIENCE)


def _first_frame(command, work: Path) -> float:
    process = subprocess.Popen(command, env=_environment(work), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        return float(process.stdout.readline())
    finally:
        _end(process)


def _processor_seconds(pid: int) -> float:
    fields = Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def _idle_share(command, work: Path) -> float:
    process = subprocess.Popen(command, env=_environment(work), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        time.sleep(BEFORE_IDLE)
        before = _processor_seconds(process.pid)
        time.sleep(IDLE)
        return (_processor_seconds(process.pid) - before) / IDLE
    finally:
        _end(process)


def table(programs: Path, runs: int, work: Path) -> str:
    """`programs` is the folder of tamble-desktop and bare-window."""
    commands = {"tamble-desktop": [programs / "tamble-desktop"], "a bare window": [programs / "bare-window", "1280", "800"]}
    frames = {name: [] for name in commands}
    for run in range(runs + 1):
        for name, command in commands.items():
            milliseconds = _first_frame(command, work)
            if run > 0:  # The first brings libraries into memory.
                frames[name].append(milliseconds)
    medians = {name: statistics.median(values) for name, values in frames.items()}
    ratio = medians["tamble-desktop"] / medians["a bare window"]
    idle = _idle_share(commands["tamble-desktop"], work)
    lines = ["### the window (`window`)", "", "| program | first frame after | fastest to slowest |", "|---|---:|---:|"]
    lines += [f"| {name} | {medians[name]:.0f} ms | {min(values):.0f} ms to {max(values):.0f} ms |" for name, values in frames.items()]
    lines += ["", f"tamble-desktop ÷ a bare window: {ratio:.2f} (wanted ≤ {WANTED_RATIO}). "
              f"Processor while nobody does anything: {idle:.1%} (wanted {WANTED_IDLE:.0%})."]  # fmt: skip
    return "\n".join(lines) + "\n"
