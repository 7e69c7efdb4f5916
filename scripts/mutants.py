"""The driver behind scripts/mutants, which says what it does."""

import argparse
import difflib
import json
import os
import random
import shlex
import shutil
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

from mutations import mutations

LOGIC = ["guards", "records", "drawing", "bars", "about", "tips", "helpers", "ordering", "content",
         "model", "render", "interaction", "sortfind", "persistence", "scroll"]
BACKENDS = ["values", "values/references", "platform", "raster", "adapters/pictures", "adapters/json", "adapters/database",
            "worlds/common", "worlds/headless", "automation"]
COMPONENT = ["activex", "worlds/win32"]
# What runs after the programs of the mutant's own room, in this order.
GENERAL = ["scenarios", "interaction", "model", "scroll", "bars", "render", "sortfind", "persistence", "guards", "about", "tips",
           "helpers", "pairs", "automation", "hostcode", "failures"]
NEAREST = {"values": ["values", "platform", "headless"], "values/references": ["values", "platform"],
           "platform": ["platform", "headless"], "raster": ["raster", "gallery"], "adapters/pictures": ["pictures", "gallery"],
           "adapters/json": ["json"], "adapters/database": ["database"], "worlds/common": ["headless"],
           "worlds/headless": ["headless"], "worlds/win32": ["win32"], "records": ["records", "model"],
           "drawing": ["drawing", "render"], "bars": ["bars", "scroll"], "ordering": ["ordering", "sortfind", "pairs"],
           "content": ["content", "persistence"], "persistence": ["persistence", "pairs", "json"]}
BUILD = Path("build/mutants")
WORK = BUILD / f"work-{os.getpid()}"  # gone with the run
PATIENCE = 5  # times what the tests take on the code as it is
LEAST_PATIENCE = 20.0  # seconds


@dataclass
class Trial:
    file: Path
    mutation: object
    source: str
    outcome: str = ""  # killed, survived, the same, refused
    by: str = ""

    @property
    def line(self):
        return self.source.count("\n", 0, self.mutation.start) + 1

    def row(self):
        changed = " ".join(self.mutation.text.split())[:120]
        return [str(self.file), str(self.line), self.mutation.kind, changed, self.outcome, self.by]

    def difference(self):
        after = self.mutation.applied(self.source)
        lines = difflib.unified_diff(self.source.splitlines(), after.splitlines(), lineterm="", n=1)
        return "\n".join(list(lines)[2:])


def run(command, seconds=None, **options):
    """Exit status and output; status None where it took too long. What it started ends with it."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL,
                               start_new_session=True, text=True, errors="replace", **options)
    try:
        output, _ = process.communicate(timeout=seconds)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, 9)
        process.communicate()
        return None, ""


def must(command, **options):
    status, output = run(command, **options)
    if status != 0:
        sys.exit(f"mutants: {' '.join(map(str, command))} failed\n{output[-3000:]}")
    return output


class SharedLibraries:
    """Mutants of the rooms that the preset `mutants` builds as shared libraries."""

    def __init__(self, rooms, programs):
        must(["cmake", "--preset", "mutants"])
        self.programs = [f"lumtex_test_{name}" for name in programs]
        print("mutants: building the tests", flush=True)
        must(["cmake", "--build", "--preset", "mutants", "--target", *self.programs])
        self.compiled = {}
        for entry in json.loads((BUILD / "compile_commands.json").read_text()):
            path = Path(entry["file"])
            if path.is_relative_to(Path.cwd()):
                self.compiled[path.relative_to(Path.cwd())] = entry
        self.links = {}
        self.lock = threading.Lock()
        self.usual = {}

    def measure(self):
        """How long the tests take as they are; they must pass."""
        for program in self.programs:
            began = time.monotonic()
            status, output = self.test(program, None, None)
            if status != 0:
                sys.exit(f"mutants: {program} fails on the code as it is\n{output[-3000:]}")
            self.usual[program] = time.monotonic() - began

    def compile(self, file, text, folder, name):
        """The object file, or None where the compiler refuses."""
        folder.mkdir(parents=True, exist_ok=True)
        changed = folder / file.name
        changed.write_text(text, encoding="utf-8")
        entry = self.compiled[file]
        words = shlex.split(entry["command"])
        while "ccache" not in Path(words[0]).name and "g++" not in Path(words[0]).name:
            words = words[1:]
        if "ccache" in Path(words[0]).name:
            words = words[1:]
        made = folder / name
        words[words.index("-o") + 1] = str(made.resolve())
        words[-1] = str(changed.resolve())
        status, _ = run([*words, "-w"], 300, cwd=entry["directory"])
        return made if status == 0 else None

    def link(self, file, changed, folder):
        """A copy of the library with this object file in place of its own."""
        command = shlex.split(self.compiled[file]["command"])
        own = Path(command[command.index("-o") + 1])
        target = next(part for part in own.parts if part.endswith(".dir")).removesuffix(".dir")
        with self.lock:
            if target not in self.links:
                self.links[target] = must(["ninja", "-C", str(BUILD), "-t", "commands", target]).splitlines()[-1]
        words = shlex.split(self.links[target].split("&&")[1])
        library = words[words.index("-o") + 1]
        words[words.index("-o") + 1] = str((folder / Path(library).name).resolve())
        words[words.index(str(own))] = str(changed.resolve())
        status, _ = run(words, 300, cwd=BUILD)
        return status == 0

    def test(self, program, libraries, seconds):
        temporary = (libraries or WORK) / "tmp"
        temporary.mkdir(parents=True, exist_ok=True)
        environment = dict(os.environ, TMPDIR=str(temporary.resolve()))
        if libraries is not None:
            environment["LD_LIBRARY_PATH"] = str(libraries.resolve())
        return run([str(BUILD / "bin" / program), "--gtest_brief=1", "--gtest_fail_fast"], seconds, env=environment)

    def same_code(self, trial, folder, changed):
        with self.lock:
            plain = WORK / "plain" / str(trial.file).replace("/", "_")
            if not (plain / "plain.o").exists():
                self.compile(trial.file, trial.source, plain, "plain.o")
        return (plain / "plain.o").read_bytes() == changed.read_bytes()

    def try_out(self, trial, folder):
        changed = self.compile(trial.file, trial.mutation.applied(trial.source), folder, "mutant.o")
        if changed is None or not self.link(trial.file, changed, folder):
            trial.outcome = "refused"
        elif self.same_code(trial, folder, changed):
            trial.outcome = "the same"
        else:
            trial.outcome, trial.by = self.outcome_of(folder, str(trial.file.parent.relative_to("src")))

    def outcome_of(self, folder, room):
        nearest = [f"lumtex_test_{name}" for name in NEAREST.get(room, [room])]
        for program in sorted(self.programs, key=lambda one: one not in nearest):
            status, output = self.test(program, folder, max(LEAST_PATIENCE, PATIENCE * self.usual[program]))
            if status is None:
                return "killed", f"{program} (without end)"
            if status != 0:
                failed = [line for line in output.splitlines() if "[  FAILED  ]" in line]
                return "killed", failed[0].split("]", 1)[1].split(",")[0].split(" (")[0].strip() if failed else f"{program} ({status})"
        return "survived", ""


class CopiedTree:
    """Mutants of the component: a tree of their own, built for Windows and run under Wine."""

    def __init__(self, rooms, programs):
        self.programs = [f"lumtex_test_{name}" for name in ["win32", "activex", "scripts", "hosting"]]
        self.tree = BUILD / "tree"
        self.tree.mkdir(parents=True, exist_ok=True)
        files = must(["git", "ls-files", "--cached", "--others", "--exclude-standard"]).splitlines()
        for name in filter(os.path.isfile, files):
            place = self.tree / name
            place.parent.mkdir(parents=True, exist_ok=True)
            if not place.exists() or place.read_bytes() != Path(name).read_bytes():
                shutil.copy(name, place)
        must(["cmake", "--preset", "win64"], cwd=self.tree)
        self.usual = {}

    def build(self):
        targets = ["LumtexListView", *self.programs]
        return run(["cmake", "--build", "--preset", "win64", "--target", *targets], 3000, cwd=self.tree)[0] == 0

    def test(self, program, seconds):
        words = ["scripts/on-display", "scripts/wine-run", f"build/win64/bin/{program}.exe"]
        return run([*words, "--gtest_brief=1", "--gtest_fail_fast"], seconds, cwd=self.tree)[0]

    def measure(self):
        print("mutants: building the component", flush=True)
        if not self.build():
            sys.exit("mutants: the component does not build")
        for program in self.programs:
            began = time.monotonic()
            if self.test(program, None) != 0:
                sys.exit(f"mutants: {program} fails on the code as it is")
            self.usual[program] = time.monotonic() - began

    def try_out(self, trial, folder):
        (self.tree / trial.file).write_text(trial.mutation.applied(trial.source), encoding="utf-8")
        try:
            trial.outcome = "refused"
            if self.build():
                trial.outcome = "survived"
                for program in self.programs:
                    status = self.test(program, max(LEAST_PATIENCE, PATIENCE * self.usual[program]))
                    if status != 0:
                        trial.outcome, trial.by = "killed", f"{program} ({'without end' if status is None else status})"
                        break
        finally:
            (self.tree / trial.file).write_text(trial.source, encoding="utf-8")


def all_trials(rooms, part, kinds):
    for room in rooms:
        for file in sorted(Path("src", room).glob("*.cpp")):
            if part in str(file):
                source = file.read_text(encoding="utf-8")
                yield from (Trial(file, one, source) for one in mutations(source) if not kinds or one.kind in kinds)


def write_report(results, survivors):
    rows = [line.split("\t") for line in results.read_text(encoding="utf-8").splitlines()]
    tally = {}
    for row in rows:
        for group in (str(Path(row[0]).parent.relative_to("src")), row[2]):
            tally.setdefault(group, {}).setdefault(row[4], []).append(row)
    report = ["# Mutants", "", "| of | killed | survived | % killed | same code | refused |", "|---|--:|--:|--:|--:|--:|"]
    tally["all"] = {outcome: [row for row in rows if row[4] == outcome] for outcome in {row[4] for row in rows}}
    for group, outcomes in tally.items():
        killed, survived = len(outcomes.get("killed", [])), len(outcomes.get("survived", []))
        share = f"{100 * killed / (killed + survived):.0f}" if killed + survived else "-"
        report.append(f"| {group} | {killed} | {survived} | {share} | {len(outcomes.get('the same', []))} "
                      f"| {len(outcomes.get('refused', []))} |")
    report += ["", "## Survivors of this run"]
    for trial in survivors:
        report += ["", f"{trial.file}:{trial.line} ({trial.mutation.kind})", "```diff", trial.difference(), "```"]
    (BUILD / "report.md").write_text("\n".join(report) + "\n", encoding="utf-8")
    print("\n".join(report))


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutants")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=500, help="how many, those that are none not counted")
    parser.add_argument("--rooms", default=",".join(LOGIC), help=f"{', '.join(LOGIC + BACKENDS + COMPONENT)}")
    parser.add_argument("--files", default="", help="only files whose path holds this")
    parser.add_argument("--kinds", default="", help="only these kinds of change")
    parser.add_argument("--programs", default="", help="only these test programs, such as scroll,scenarios")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--list", action="store_true", help="show the sample and try nothing")
    options = parser.parse_args()

    rooms = options.rooms.split(",")
    unknown = set(rooms) - set(LOGIC + BACKENDS + COMPONENT)
    if unknown or (set(rooms) & set(COMPONENT) and not set(rooms) <= set(COMPONENT)):
        parser.error(f"rooms that are not there, or both of the component and others: {options.rooms}")
    sample = list(all_trials(rooms, options.files, set(filter(None, options.kinds.split(",")))))
    random.Random(options.seed).shuffle(sample)
    if options.list:
        for trial in sample[: options.count]:
            print(f"{trial.file}:{trial.line} {trial.mutation.kind}\n{trial.difference()}\n")
        return 0

    nearest = [name for room in rooms for name in NEAREST.get(room, [room])]
    programs = options.programs.split(",") if options.programs else list(dict.fromkeys(nearest + GENERAL))
    house = (CopiedTree if rooms[0] in COMPONENT else SharedLibraries)(rooms, programs)
    house.measure()
    jobs = 1 if rooms[0] in COMPONENT else options.jobs
    results, pending, done, lock = BUILD / "results.tsv", iter(sample), [], threading.Lock()

    def work(number):
        folder = WORK / str(number)
        while True:
            with lock:
                tried = sum(1 for one in done if one.outcome in ("killed", "survived"))
                trial = next(pending, None) if tried < options.count else None
            if trial is None:
                return
            shutil.rmtree(folder, ignore_errors=True)
            house.try_out(trial, folder)
            with lock:
                done.append(trial)
                with results.open("a", encoding="utf-8") as file:
                    file.write("\t".join(trial.row()) + "\n")
                if trial.outcome in ("killed", "survived"):
                    print(f"{trial.outcome}: {trial.file}:{trial.line} {trial.mutation.kind} {trial.by}", flush=True)

    with ThreadPoolExecutor(jobs) as workers:
        list(workers.map(work, range(jobs)))
    shutil.rmtree(WORK, ignore_errors=True)
    write_report(results, [trial for trial in done if trial.outcome == "survived"])
    return 0


if __name__ == "__main__":
    sys.exit(main())
