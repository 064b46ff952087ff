#!/usr/bin/env python3
"""lint.py BUILD_FOLDER [FILE...]: clang-tidy over the tracked sources (or these files) as BUILD_FOLDER compiles them.

A source is linted again only when it, a header of the project that it includes, its compile command or the rules have
changed; what passed is remembered under the build folder.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLUGIN = ROOT / "scripts" / "lint_own_declarations.cpp"
CROSS_COMPILER = "x86_64-w64-mingw32-g++-posix"


def output_of(*command):
    return subprocess.run(command, cwd=ROOT, check=True, capture_output=True, text=True).stdout


def include_folders():
    """The cross compiler's system folders without its own intrinsics, for which clang has headers of its own."""
    report = subprocess.run([CROSS_COMPILER, "-E", "-v", "-x", "c++", os.devnull], check=True, capture_output=True,
                            text=True).stderr
    folders = [line.strip() for line in report.splitlines() if line.startswith(" /") and " " not in line.strip()]
    own = {"include", "include-fixed"}
    return [folder for folder in folders
            if not (pathlib.Path(folder).name in own and "/lib/gcc/" in os.path.normpath(folder))]


def dependencies(build):
    """For each object file the headers of the project that went into it."""
    headers = {}
    current = None
    for line in output_of("ninja", "-C", str(build), "-t", "deps").splitlines():
        if line and not line.startswith(" "):
            current = headers.setdefault(line.split(": #deps")[0], [])
        elif line.strip():
            path = os.path.normpath(build / line.strip())
            if path.startswith(f"{ROOT}/"):
                current.append(path)
    return headers


def build_plugin(version):
    """The library that keeps clang-tidy out of the system's headers, built for this clang-tidy."""
    content = hashlib.sha256(version.encode() + PLUGIN.read_bytes()).hexdigest()
    library = ROOT / "build" / f"{PLUGIN.stem}.{content}.so"
    if not library.exists():
        clang = pathlib.Path(shutil.which("clang-tidy")).resolve().parent.parent
        unfinished = library.with_suffix(f".{os.getpid()}")
        output_of("g++", "-std=c++17", "-shared", "-fPIC", "-fno-rtti", f"-isystem{clang / 'include'}", str(PLUGIN),
                  "-o", str(unfinished))
        unfinished.rename(library)
    return library


class Linter:
    def __init__(self, build):
        self.build = build
        self.passed = build / "lint"
        self.passed.mkdir(exist_ok=True)
        self.arguments = ["--target=x86_64-w64-mingw32", *(f"-isystem{folder}" for folder in include_folders())]
        version = output_of("clang-tidy", "--version")
        self.plugin = build_plugin(version)
        self.rules = version + (ROOT / ".clang-tidy").read_text() + self.plugin.name + repr(self.arguments)
        self.headers = dependencies(build)

    def key(self, entry):
        content = hashlib.sha256((self.rules + entry["command"]).encode())
        words = shlex.split(entry["command"])
        for path in sorted({entry["file"], *self.headers.get(words[words.index("-o") + 1], [])}):
            content.update(path.encode() + b"\0" + pathlib.Path(path).read_bytes())
        return content.hexdigest()

    def lint(self, entry):
        """None where the source passed before, else the findings."""
        stamp = self.passed / self.key(entry)
        if stamp.exists():
            return None
        result = subprocess.run(
            ["clang-tidy", "-p", str(self.build), "--quiet",
             f"--load={self.plugin}", "--checks=ortin-own-declarations",
             *(f"--extra-arg-before={argument}" for argument in self.arguments), entry["file"]],
            cwd=ROOT, capture_output=True, text=True)
        if result.returncode == 0:
            stamp.touch()
            return ""
        return result.stdout + result.stderr


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    wanted = [str(pathlib.Path(name).resolve()) for name in sys.argv[2:]] or \
        [str(ROOT / name) for name in output_of("git", "ls-files", "*.cpp").splitlines()]
    entries = [entry for entry in json.loads((build / "compile_commands.json").read_text())
               if entry["file"] in wanted]
    linter = Linter(build)
    linted = failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for entry, findings in zip(entries, pool.map(linter.lint, entries)):
            linted += findings is not None
            if findings:
                failed += 1
                print(f"{os.path.relpath(entry['file'], ROOT)}:\n{findings}", flush=True)
    print(f"{len(entries)} sources, {linted} of them linted now, {failed} with findings")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
