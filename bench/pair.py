#!/usr/bin/env python3
"""pair.py RUNS 'COMMAND' 'COMMAND'...

Runs the commands in turn, each as a process of its own, and prints the least, the tenth part's and the median wall time
in ms. Words are split at spaces; what a command prints is dropped."""
import os
import sys
import time

runs, commands = int(sys.argv[1]), [command.split() for command in sys.argv[2:]]
times = [[] for _ in commands]
nowhere = os.open(os.devnull, os.O_WRONLY)
for _ in range(runs):
    for taken, command in zip(times, commands):
        start = time.perf_counter()
        child = os.posix_spawnp(command[0], command, os.environ,
                                file_actions=[(os.POSIX_SPAWN_DUP2, nowhere, 1)])
        if os.waitpid(child, 0)[1] != 0:
            sys.exit("failed: " + " ".join(command))
        taken.append(1000 * (time.perf_counter() - start))
for taken, command in zip(times, commands):
    taken.sort()
    print(f"{taken[0]:8.2f} {taken[runs // 10]:8.2f} {taken[runs // 2]:8.2f}  {' '.join(command)}")
