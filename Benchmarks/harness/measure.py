"""Runs one command and tells its time and processor time, or the memory of all its processes together."""

import os
import threading
import time
from dataclasses import dataclass
from pathlib import Path

# Seconds; samples are close together at first, for what ends soon.
FIRST_INTERVAL, LONGEST_INTERVAL = 0.001, 0.02


@dataclass(frozen=True)
class Measurement:
    seconds: float
    processor_seconds: float


class CommandFailed(Exception):
    pass


def _descendants(pid):
    pending = [pid]
    while pending:
        process = pending.pop()
        yield process
        try:
            for task in os.listdir(f"/proc/{process}/task"):
                with open(f"/proc/{process}/task/{task}/children") as children:
                    pending.extend(map(int, children.read().split()))
        except OSError:
            pass  # it has ended


def _bytes_held(pid):
    """Proportional set size: a page that several processes share counts in parts."""
    try:
        with open(f"/proc/{pid}/smaps_rollup") as memory:
            return next(int(line.split()[1]) * 1024 for line in memory if line.startswith("Pss:"))
    except (OSError, StopIteration):
        return 0  # it has ended


class _MemorySampler(threading.Thread):
    """Adds up the memory of a process and all below it, every now and then, and keeps the most."""

    def __init__(self, pid):
        super().__init__(daemon=True)
        self.pid = pid
        self.peak = 0
        self.ended = threading.Event()

    def run(self):
        interval = FIRST_INTERVAL
        while not self.ended.wait(interval):
            interval = min(interval * 1.5, LONGEST_INTERVAL)
            self.peak = max(self.peak, sum(map(_bytes_held, _descendants(self.pid))))


def _start(command, environment, log: Path) -> int:
    """`command` is a list whose first element is an absolute path. Its output goes to `log`."""
    actions = [
        (os.POSIX_SPAWN_OPEN, 0, "/dev/null", os.O_RDONLY, 0),
        (os.POSIX_SPAWN_OPEN, 1, str(log), os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644),
        (os.POSIX_SPAWN_DUP2, 1, 2),
    ]
    return os.posix_spawn(command[0], command, environment, file_actions=actions)


def _end(pid, command, log: Path):
    _, status, usage = os.wait4(pid, 0)
    if status != 0:
        raise CommandFailed(f"{' '.join(command)}\n{log.read_text(errors='replace')[-2000:]}")
    return usage


def measure(command, environment, log: Path) -> Measurement:
    start = time.perf_counter()
    usage = _end(_start(command, environment, log), command, log)
    return Measurement(time.perf_counter() - start, usage.ru_utime + usage.ru_stime)


def peak_bytes(command, environment, log: Path) -> int:
    """Looking takes time, so this is another run than the measured ones."""
    pid = _start(command, environment, log)
    sampler = _MemorySampler(pid)
    sampler.start()
    try:
        _end(pid, command, log)
    finally:
        sampler.ended.set()
        sampler.join()
    return sampler.peak
