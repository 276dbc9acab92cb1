#!/usr/bin/env python3
"""Presses TAB behind the beginning of a line, in bash and zsh on a terminal and in
fish by its own command, and looks at the words that the shell then sees.

    check.py OPXML SOURCE-FOLDER
"""
import os
import pty
import re
import select
import subprocess
import sys
import tempfile

opxml, source = map(os.path.abspath, sys.argv[1:])
scripts = os.path.join(source, "tools/opxml/completion/shells")

# Names as people should not choose them.
ODD_NAMES = ["q'uote\"d $HOME `x`", "<script>&;", "back\\slash", "co:lon=x", "Gerät 界", "-dash"]
ODD_ROOT = "INSERT INTO device_type (name, version) VALUES\n" + ",\n".join(
    "('%s', 'V%d')" % (name.replace("'", "''"), number) for number, name in enumerate(ODD_NAMES)) + ";\n"

# What is typed, and the words it becomes.
LINES = [
    ("opxml sho", ["opxml", "show"]),
    ("opxml --ro", ["opxml", "--root"]),
    ("opxml load --js", ["opxml", "load", "--json"]),
    ("opxml load --verb", ["opxml", "load", "--verbose"]),
    ("opxml show LX", ["opxml", "show", "LX 2400/S"]),
    ("opxml show 'LX 24", ["opxml", "show", "LX 2400/S"]),
    ("opxml show RX\\ 9", ["opxml", "show", "RX 900\\E"]),
    ("opxml show 'LX 2400/S' V3.8", ["opxml", "show", "LX 2400/S", "V3.8"]),
    ("opxml show lx-u", ["opxml", "show", "lx-up"]),
    ("opxml explain lx-up LoadP", ["opxml", "explain", "lx-up", "LoadPatch"]),
    ("opxml explain 'LX 2400/S:V3.8' Backup Cont", ["Backup", "ContentType"]),
    ("opxml explain 101 Backup ContentType CONF", ["ContentType", "CONFIG"]),
    ("opxml query isDeviceOpS", ["opxml", "query", "isDeviceOpSupported"]),
    ("opxml query isDeviceOpSupported 'LX 2400/S' V3.8 Back", ["Backup"]),
    ("opxml query isCancelOperSupported 101 Back", ["Backup"]),
    ("opxml query isSupportTaskType 101 PatchU", ["PatchUpdate"]),
    ("opxml lint --explain not-well", ["opxml", "lint", "--explain", "not-well-formed"]),
    ("opxml lint --format sar", ["opxml", "lint", "--format", "sarif"]),
    ("opxml --root odd show co:lo", ["co:lon=x"]),
    ("opxml --root odd show q", [ODD_NAMES[0]]),
    ("opxml --root odd show '<", ["<script>&;"]),
    ("opxml --root odd show back", ["back\\slash"]),
    ("opxml --root odd show Ger", ["Gerät 界"]),
    ("opxml --root odd show -- -d", ["-dash"]),
    ("opxml filecheck examples/server/file_c", ["examples/server/file_check.xml"]),
    ("opxml --root examples/ser", ["examples/server/"]),
]


def environment(folder):
    return {"PATH": os.path.dirname(opxml) + ":/usr/bin:/bin", "HOME": folder, "TERM": "dumb", "LC_ALL": "C.UTF-8",
            "OPXML_ROOT": "examples/server"}


class Terminal:
    """An interactive shell that is typed into; its answers come between marks."""

    def __init__(self, command, setup, folder):
        self.pid, self.handle = pty.fork()
        if self.pid == 0:
            os.chdir(folder)
            os.execvpe(command[0], command, environment(folder))
        self.type(setup + "\r")
        self.answer("true")

    def type(self, text):
        os.write(self.handle, text.encode())

    def read_until(self, pattern):
        text = ""
        while not re.search(pattern, text, re.S):
            if not select.select([self.handle], [], [], 60)[0]:
                raise SystemExit("no answer from the shell, but:\n" + text)
            text += os.read(self.handle, 65536).decode(errors="replace")
        return re.search(pattern, text, re.S)

    def answer(self, line, keys=""):
        """The words of a line, after some keys at its end."""
        self.type(line + keys + "\x01printf '\\001%s\\002\\n' \x05 | od -An -v -tx1; printf '\\003'\r")
        numbers = self.read_until(r"\n([0-9a-f \r\n]*)\x03").group(1)
        text = bytes.fromhex("".join(numbers.split())).decode()
        return re.findall("\x01(.*?)\x02", text, re.S)


def fish(line, folder):
    command = "source %s/opxml.fish; complete -C $argv[1]" % scripts
    found = subprocess.run(["fish", "--no-config", "-c", command, line], cwd=folder, env=environment(folder),
                           stdout=subprocess.PIPE, check=True).stdout.decode()
    return [row.split("\t")[0] for row in found.splitlines()]


def main():
    failed = 0
    with tempfile.TemporaryDirectory() as folder:
        os.mkdir(folder + "/odd")
        with open(folder + "/odd/server.sql", "w") as script:
            script.write(ODD_ROOT)
        os.symlink(source + "/examples", folder + "/examples")
        shells = {
            "bash": Terminal(["bash", "--norc", "--noprofile", "-i"],
                             "bind 'set bell-style none'; bind 'set enable-bracketed-paste off'; "
                             "source %s/opxml.bash" % scripts, folder),
            "zsh": Terminal(["zsh", "-f", "-i"],
                            "fpath=(%s $fpath); autoload -U compinit && compinit -u -D; unsetopt zle_bracketed_paste; "
                            "bindkey -e; setopt no_beep no_auto_remove_slash" % scripts, folder),
        }
        for typed, expected in LINES:
            for name, shell in shells.items():
                words = shell.answer(typed, "\t")
                if words[-len(expected):] != expected:
                    failed += 1
                    print("%s: %s became %s, expected %s" % (name, typed, words, expected))
            words = fish(typed, folder)
            if words != expected[-1:]:
                failed += 1
                print("fish: %s offers %s, expected %s" % (typed, words, expected[-1:]))
    print("Completion: %d lines in three shells, %d wrong" % (len(LINES), failed))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
