"""Runs one command and tells its time, its processor time and the memory of all its processes together."""

import os
import resource
import threading
import time
from dataclasses import dataclass
from pathlib import Path

# Seconds; samples are close together at first, for what ends soon.
FIRST_INTERVAL, LONGEST_INTERVAL = 0.001, 0.02
PAGE_SIZE = os.sysconf("SC_PAGE_SIZE")


@dataclass(frozen=True)
class Measurement:
    seconds: float
    processor_seconds: float
    peak_bytes: int


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


def _resident_bytes(pid):
    try:
        with open(f"/proc/{pid}/statm") as statm:
            return int(statm.read().split()[1]) * PAGE_SIZE
    except OSError:
        return 0


class _MemorySampler(threading.Thread):
    """Adds up the resident memory of a process and all below it, every now and then, and keeps the most."""

    def __init__(self, pid):
        super().__init__(daemon=True)
        self.pid = pid
        self.peak = 0
        self.ended = threading.Event()

    def run(self):
        interval = FIRST_INTERVAL
        while not self.ended.wait(interval):
            interval = min(interval * 1.5, LONGEST_INTERVAL)
            self.peak = max(self.peak, sum(map(_resident_bytes, _descendants(self.pid))))


def measure(command, environment, log: Path) -> Measurement:
    """`command` is a list whose first element is an absolute path. Its output goes to `log`."""
    actions = [
        (os.POSIX_SPAWN_OPEN, 0, "/dev/null", os.O_RDONLY, 0),
        (os.POSIX_SPAWN_OPEN, 1, str(log), os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644),
        (os.POSIX_SPAWN_DUP2, 1, 2),
    ]
    start = time.perf_counter()
    pid = os.posix_spawn(command[0], command, environment, file_actions=actions)
    sampler = _MemorySampler(pid)
    sampler.start()
    _, status, usage = os.wait4(pid, 0)
    seconds = time.perf_counter() - start
    sampler.ended.set()
    sampler.join()
    if status != 0:
        raise CommandFailed(f"{' '.join(command)}\n{log.read_text(errors='replace')[-2000:]}")
    # The kernel knows the peak of the largest single process exactly, but starts counting before this program has
    # given way to the measured one: a figure that is not above our own says nothing.
    largest = usage.ru_maxrss if usage.ru_maxrss > resource.getrusage(resource.RUSAGE_SELF).ru_maxrss else 0
    return Measurement(seconds, usage.ru_utime + usage.ru_stime, max(sampler.peak, largest * 1024))
