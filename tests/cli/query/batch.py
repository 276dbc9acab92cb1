#!/usr/bin/env python3
# Asks the questions of a table in one batch on the example server and compares
# every answer, as an object, with the one beside it.
#   batch.py OPXML EXAMPLE-SERVER TABLE...
# A table is pairs of lines: "? " and a line of the batch, "= " and the object that
# answers it. The answer "dump KEY" stands for what opxml dump prints for a storage
# key, "first of KEY" for its first record. Other lines are for the reader.
import json
import os
import subprocess
import sys


def run(opxml, server, *arguments, **options):
    done = subprocess.run([opxml, *arguments], cwd=server, capture_output=True, timeout=100, **options)
    return done.returncode, done.stdout.decode()


def records(opxml, server, answer):
    for prefix in ("dump ", "first of "):
        if isinstance(answer, str) and answer.startswith(prefix):
            key = answer[len(prefix):]
            found = json.loads(run(opxml, server, "dump", key)[1])[key]
            return found if prefix == "dump " else found[0]
    return answer


def check(opxml, server, table):
    lines = table.splitlines()
    questions = [line[2:] for line in lines if line.startswith("? ") or line == "?"]
    expected = [json.loads(line[2:]) for line in lines if line.startswith("= ")]
    status, output = run(opxml, server, "query", "--batch", "-", input="\n".join(questions).encode())
    answers = [json.loads(line) for line in output.splitlines()]
    wrong = [f"{len(questions)} questions, {len(expected)} expected answers, {len(answers)} answers"]
    if len(questions) == len(expected) == len(answers) > 0:
        wrong = []
    for question, want, got in zip(questions, expected, answers):
        if "answer" in want:
            want["answer"] = records(opxml, server, want["answer"])
        if list(got.items()) != list(want.items()):
            wrong.append(f"{question}\n  expected {want}\n  answered {got}")
    if status != int(any("error" in want for want in expected)):
        wrong.append(f"exit status {status}")
    return wrong


def main(arguments):
    opxml, server, *paths = arguments
    failed = False
    for path in paths:
        with open(path, encoding="utf-8") as file:
            for line in check(os.path.abspath(opxml), server, file.read()):
                print(f"{path}: {line}")
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
