"""Runs rows: contenders side by side, in an order that turns with every run."""

import os
import shutil
from pathlib import Path

from . import programs, report
from .measure import CommandFailed, measure, peak_bytes


def _environment(home: Path) -> dict:
    return {"PATH": os.environ["PATH"], "HOME": str(home), "LC_ALL": "C.UTF-8"}


def _command(contender, inputs, output: Path) -> list:
    command = contender.command(inputs, output)
    if isinstance(command, str):
        return [shutil.which("bash"), "-c", f"set -o pipefail; {command}"]
    return [str(part) for part in command]


def _warm(folder: Path) -> None:
    """Brings the inputs into memory, so that nobody waits for the disk."""
    for parent, _, names in os.walk(folder):
        for name in names:
            (Path(parent) / name).read_bytes()


def _is_there(contender, inputs) -> bool:
    program = Path(_command(contender, inputs, Path("output"))[0])
    return all(map(programs.is_installed, contender.needs)) and program.exists()


class _Places:
    """A new home and output folder for each run. With `keeps`, the earlier ones stay until the row is done: a file system
    that has just removed thousands of files is slow at making new ones. Otherwise they make room for the next."""

    def __init__(self, work: Path, keeps: bool):
        self.work, self.keeps, self.count = work / "runs", keeps, 0

    def new(self):
        if not self.keeps:
            self.remove()
        self.count += 1
        home, output = self.work / f"{self.count}/home", self.work / f"{self.count}/output"
        for folder in (home, output):
            folder.mkdir(parents=True)
        # What earlier runs wrote is not to be written to the disk during this one.
        os.sync()
        return home, output

    def remove(self):
        shutil.rmtree(self.work, ignore_errors=True)


def run_row(row, inputs, warm_folder: Path | None, runs: int, work: Path, say) -> str:
    contenders = [contender for contender in row.contenders if _is_there(contender, inputs)]
    measured = {contender.name: [] for contender in contenders}
    peaks, notes, made, failed = {}, {}, {}, set()
    log, places = work / "log", _Places(work, row.makes_many_files)
    if warm_folder:
        _warm(warm_folder)

    def run(contender, how):
        home, output = places.new()
        if row.prepare:
            row.prepare(inputs, output)
            os.sync()
        result = how(_command(contender, inputs, output), _environment(home), log)
        if contender.name not in made:
            made[contender.name] = row.made(inputs, output, log)
            left = f"; {row.left(output)}" if row.left else ""
            notes[contender.name] = made[contender.name] + left
        return result

    for number in range(runs * row.repetitions):
        turn = number % len(contenders) if contenders else 0
        for contender in contenders[turn:] + contenders[:turn]:
            if contender.name in failed:
                continue
            try:
                measured[contender.name].append(run(contender, measure))
                if number == 0:
                    peaks[contender.name] = run(contender, peak_bytes)
            except CommandFailed as failure:
                say(f"{row.key}: {contender.name} failed:\n{failure}")
                failed.add(contender.name)
    places.remove()
    measured = {name: all_of for name, all_of in measured.items() if all_of}
    if len(set(made.values())) > 1:
        say(f"{row.key}: the contenders made different things, so their times don't compare: {made}")
    return report.table(row, measured, peaks, notes)
