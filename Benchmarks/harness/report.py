"""Prints what was measured as a Markdown table."""

import datetime
import os
import platform
import statistics
from pathlib import Path

from . import programs
from .rows import OURS

MEBIBYTE = 1024 * 1024


def _processor() -> str:
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return platform.machine()


def heading(names, tamble: Path) -> str:
    versions = {name: programs.version_of(name) for name in names}
    if tamble.exists():
        versions = {OURS: programs.first_line([str(tamble), "--version"]), **versions}
    lines = [f"{datetime.date.today()}, {os.cpu_count()} cores ({_processor()}), Linux {platform.release()}", ""]
    lines += [f"- {name}: {version}" for name, version in versions.items()]
    return "\n".join(lines)


def _seconds(value: float) -> str:
    return f"{value:.2f} s" if value >= 0.5 else f"{value * 1000:.1f} ms"


def _ratio(row, name: str, ours: float, theirs: float) -> str:
    wanted = row.wanted.get(name)
    verdict = "" if wanted is None else f" (wanted ≤ {wanted:g})"
    return f"{ours / theirs:.2f}{verdict}"


def table(row, measured: dict, peaks: dict, notes: dict) -> str:
    """`measured` holds the measurements of each contender, `peaks` its memory, `notes` what was found in its output."""
    medians = {name: statistics.median(one.seconds for one in all_of) for name, all_of in measured.items()}
    lines = [
        f"### {row.title} (`{row.key}`)",
        "",
        "| program | median | fastest to slowest | tamble ÷ this | processor | peak memory | output |",
        "|---|---:|---:|---:|---:|---:|---|",
    ]
    for name, all_of in measured.items():
        times = sorted(one.seconds for one in all_of)
        ratio = _ratio(row, name, medians[OURS], medians[name]) if OURS in medians and name != OURS else ""
        memory = f"{peaks.get(name, 0) / MEBIBYTE:.0f} MiB"
        if name == OURS and row.wanted_mebibytes:
            memory += f" (wanted ≤ {row.wanted_mebibytes})"
        processor = statistics.median(one.processor_seconds for one in all_of)
        lines.append(
            f"| {name} | {_seconds(medians[name])} | {_seconds(times[0])} to {_seconds(times[-1])} | {ratio} "
            f"| {_seconds(processor)} | {memory} | {notes.get(name, '')} |"
        )
    return "\n".join(lines) + "\n"
