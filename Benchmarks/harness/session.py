"""Runs rows: contenders side by side, in an order that turns with every run."""

import os
import shutil
from pathlib import Path

from . import programs, report
from .measure import CommandFailed, measure


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


def run_row(row, inputs, warm_folder: Path | None, runs: int, work: Path, say) -> str:
    contenders = [contender for contender in row.contenders if _is_there(contender, inputs)]
    measured = {contender.name: [] for contender in contenders}
    notes, made, failed = {}, {}, set()
    log, home, output = work / "log", work / "home", work / "output"
    if warm_folder:
        _warm(warm_folder)
    for number in range(runs * row.repetitions):
        turn = number % len(contenders) if contenders else 0
        for contender in contenders[turn:] + contenders[:turn]:
            if contender.name in failed:
                continue
            for folder in (home, output):
                shutil.rmtree(folder, ignore_errors=True)
                folder.mkdir(parents=True)
            # What earlier runs wrote is not to be written to the disk during this one.
            os.sync()
            try:
                measured[contender.name].append(measure(_command(contender, inputs, output), _environment(home), log))
            except CommandFailed as failure:
                say(f"{row.key}: {contender.name} failed:\n{failure}")
                failed.add(contender.name)
                continue
            if contender.name not in made:
                made[contender.name] = row.made(inputs, output, log)
                left = f"; {row.left(output)}" if row.left else ""
                notes[contender.name] = made[contender.name] + left
    shutil.rmtree(output, ignore_errors=True)
    measured = {name: all_of for name, all_of in measured.items() if all_of}
    if len(set(made.values())) > 1:
        say(f"{row.key}: the contenders made different things, so their times don't compare: {made}")
    return report.table(row, measured, notes)
