#!/usr/bin/env python3
# Runs the commands of a transcript on the example server and compares what they
# print, and how they end, with what the transcript says.
#   golden.py [--update] OPXML EXAMPLE-SERVER TRANSCRIPT...
# A transcript is shell commands after "$ ", each followed by its output, lines of
# stderr after "! ", and its exit status in brackets. Lines before a command that
# start with "# " are for the reader. --update writes what comes out today: read
# the difference before you keep it.
import difflib
import os
import re
import subprocess
import sys
import tempfile

# What differs from run to run.
VARYING = (
    (re.compile(r"\d+\.\d{3} s, \d+\.\d MB/s"), "N s, N MB/s"),
    (re.compile(r'("megabytes"|"seconds"|"megabytesPerSecond"): [0-9.e+-]+'), r"\1: N"),
    (re.compile(r'"line":\d+'), '"line":N'),
    (re.compile(r'"time":"\d{4}(-\d\d){2}T\d\d(:\d\d){2}\.\d{3}Z"'), '"time":"T"'),
    (re.compile(r"\b\d\d(:\d\d){2}\.\d{3} (?=(error|info) )"), "TIME "),
)


def run(command, opxml, server, scratch):
    environment = {name: value for name, value in os.environ.items() if name not in ("OPXML_ROOT", "NO_COLOR", "COLUMNS")}
    environment.update(LC_ALL="C.UTF-8", SCRATCH=scratch, PATH=os.path.dirname(opxml) + ":" + os.environ["PATH"])
    done = subprocess.run(["bash", "-c", command], cwd=server, env=environment, stdin=subprocess.DEVNULL,
                          capture_output=True, timeout=100)
    lines = done.stdout.decode().splitlines()
    lines += ["! " + line for line in done.stderr.decode().splitlines()]
    text = "\n".join(lines + [f"[{done.returncode}]"]).replace(scratch, "SCRATCH")
    for pattern, replacement in VARYING:
        text = pattern.sub(replacement, text)
    return text


def replay(transcript, opxml, server):
    blocks = []
    with tempfile.TemporaryDirectory() as scratch:
        remarks = []
        for line in transcript.splitlines():
            if line.startswith("# "):
                remarks.append(line)
            elif line.startswith("$ "):
                blocks.append("\n".join(remarks + [line, run(line[2:], opxml, server, scratch)]) + "\n")
                remarks = []
    return "\n".join(blocks)


def main(arguments):
    update = arguments[:1] == ["--update"]
    opxml, server, *paths = arguments[1 if update else 0:]
    failed = False
    for path in paths:
        with open(path, encoding="utf-8") as file:
            expected = file.read()
        actual = replay(expected, os.path.abspath(opxml), server)
        if update:
            with open(path, "w", encoding="utf-8") as file:
                file.write(actual)
        elif not actual or actual != expected:
            failed = True
            sys.stdout.writelines(difflib.unified_diff(expected.splitlines(True), actual.splitlines(True), path, "now"))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
