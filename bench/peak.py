#!/usr/bin/env python3
"""Runs a command and prints the most memory that it held, in MB."""
import resource
import subprocess
import sys

subprocess.run(sys.argv[1:], stdout=subprocess.DEVNULL, check=True)
print(f"{resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024:.1f} MB")
