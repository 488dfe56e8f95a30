"""Runs programs and takes their times and peak memory; shared by bench/run.sh and bench/check-ratios."""
import os
import statistics
import subprocess
import time


class Run:
    """One run of a program: seconds from start to end, peak memory in bytes, and its "name value" lines."""

    def __init__(self, command):
        begin = time.perf_counter()
        child = subprocess.Popen([str(word) for word in command], stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE, text=True)
        output, errors = child.stdout.read(), child.stderr.read()
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
        self.wall = time.perf_counter() - begin
        self.cpu = usage.ru_utime + usage.ru_stime
        self.peak = usage.ru_maxrss * 1024
        if child.returncode != 0:
            raise SystemExit(f"{command[0]} ended with {child.returncode}: {errors.strip()}")
        pairs = (line.split(None, 1) for line in output.splitlines())
        self.values = {pair[0]: pair[1] for pair in pairs if len(pair) == 2}

    def __getitem__(self, name):
        """A number that the program printed."""
        return float(self.values[name])


def rounds(commands, count):
    """Runs all commands in turn, `count` times after a first run that is not counted; a list for each.

    In turn, so that a machine that slows down for a while slows down all of them.
    """
    results = [[] for _ in commands]
    for turn in range(count + 1):
        for held, command in zip(results, commands):
            run = Run(command)
            if turn > 0:
                held.append(run)
    return results


def peak_while_it_runs(command):
    """Peak memory in bytes of a program that takes less than this one: what a process gets from wait4 is never below
    the memory of the process that started it. The high mark is read each millisecond."""
    peak = 0
    with subprocess.Popen([str(word) for word in command], stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL) as child:
        while child.poll() is None:
            try:
                with open(f"/proc/{child.pid}/status", encoding="ascii", errors="replace") as status:
                    marks = [line.split()[1] for line in status if line.startswith("VmHWM:")]
            except OSError:
                break
            peak = max([peak, *(int(mark) * 1024 for mark in marks)])
            time.sleep(0.001)
    return peak


def median(runs, value):
    """The median of what `value` takes from each run."""
    return statistics.median(value(run) for run in runs)


def force_bytes(folder, name):
    return sum(entry.stat().st_size for entry in os.scandir(folder)
               if entry.name.startswith(name + ".vmd"))


def force_files(folder, name):
    return sorted(entry.path for entry in os.scandir(folder) if entry.name.startswith(name + ".vmd"))
