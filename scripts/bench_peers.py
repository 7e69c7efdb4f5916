"""Runs the peers in turn and keeps what they print; scripts/bench-peers says how it is called."""
import argparse
import os
import subprocess
import sys
import tempfile
import time

import bench_report

PROGRAMS = ["list", "widget", "plain", "qt", "gtk", "fltk"]
ON_A_DISPLAY = {"gtk", "fltk"}
FOLDER = "build/release/bin/lumtex_peer_"
# Other toolkits take half an hour for a round of these.
LEAST_ROWS_MEASURED_ONCE = 1_000_000
TIME_LIMIT = 600  # seconds for all measures of one list
USUAL = "usual"
OURS_AND_THE_FLOOR = {"the list", "the widget", "plain C++"}
ROWS_OF_OTHER_DATA = 100_000


def run(command, **environment):
    """What a program prints, as rows of columns; what it prints after a failure or too long a time is lost."""
    settings = dict(os.environ, QT_LOGGING_RULES="*=false", LC_ALL="C.UTF-8", **environment)
    try:
        done = subprocess.run(command, env=settings, capture_output=True, text=True, timeout=TIME_LIMIT, check=False)
    except subprocess.TimeoutExpired as late:
        print(f"    {command[-2:]} took too long and was ended", file=sys.stderr)
        return [line.split("\t") for line in (late.stdout or b"").decode().splitlines() if line.count("\t") == 3]
    if done.returncode != 0:
        raise SystemExit(f"bench-peers: {command} failed:\n{done.stderr[-2000:]}")
    return [line.split("\t") for line in done.stdout.splitlines() if "\t" in line]


def prefix_of(program):
    return ["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24"] if program in ON_A_DISPLAY else []


def peers():
    """Program, name and largest size of each list."""
    for program in PROGRAMS:
        for name, most in run(prefix_of(program) + [FOLDER + program]):
            yield program, name, int(most)


def parts(text):
    return text.split(",") if text else []


def tables_of(options):
    """Number of rows and kind of data of each table that all lists are filled with."""
    yield from ((int(number), USUAL) for number in parts(options.rows))
    yield from ((ROWS_OF_OTHER_DATA, data) for data in parts(options.data))


def measure(options, results):
    everybody = list(peers())
    for rows, data in tables_of(options):
        with tempfile.TemporaryDirectory() as folder:
            records = os.path.join(folder, "records.sqlite")
            subprocess.run([FOLDER + "plain", "--records", records, str(rows), data], check=True)
            for turn in range(options.rounds if rows < LEAST_ROWS_MEASURED_ONCE else 1):
                for program, name, most in everybody:
                    if rows > most or (name not in OURS_AND_THE_FLOOR and rows > options.peers_up_to):
                        continue
                    print(f"{rows} rows, {data} data, round {turn + 1}: {name}", flush=True)
                    lines = run(prefix_of(program) + [FOLDER + program, name, str(rows), data],
                                LUMTEX_PEER_RECORDS=records)
                    results += [[kind, data, size, name, str(turn), value, check] for kind, size, value, check in lines]


def measure_component(options, results):
    command = ["scripts/on-display", "scripts/wine-run", "build/win64/bin/lumtex_bench_component.exe", "--results"]
    for data in [USUAL, *parts(options.data)]:
        for turn in range(options.rounds):
            print(f"the component under Wine, {data} data, round {turn + 1}", flush=True)
            results += [[kind, data, rows, name, str(turn), value, check]
                        for kind, rows, name, value, check in run(command + [data])]


def disagreements(results):
    """Measures of which two lists did not arrive at the same result."""
    first = {}
    for kind, data, rows, name, _, _, check in results:
        other = first.setdefault((kind, data, rows), (name, check))
        if other[1] != check or check == "0" and kind != "bytes a cell":
            yield f"{kind}, {rows} rows of {data} data: {name} has {check}, {other[0]} has {other[1]}"


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as lines:
        model = next(line.split(":")[1].strip() for line in lines if line.startswith("model name"))
    compiler = subprocess.run(["g++", "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]
    load = os.getloadavg()[0]
    return (f"{time.strftime('%Y-%m-%d')}, {os.cpu_count()} cores of {model}, {compiler}, -O3; "
            f"other work on the machine as it began: {load:.1f}")


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench-peers")
    parser.add_argument("--rows", default="10000,100000,1000000,10000000")
    parser.add_argument("--data", default="long,few,sorted,reversed")
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--peers-up-to", type=int, default=1_000_000)
    parser.add_argument("--without-wine", action="store_true")
    parser.add_argument("--write", action="store_true")
    options = parser.parse_args()
    if not options.write:
        where, results = machine(), []
        measure(options, results)
        if not options.without_wine:
            measure_component(options, results)
        wrong = sorted(set(disagreements(results)))
        if wrong:
            raise SystemExit("bench-peers: lists disagree:\n" + "\n".join(wrong))
        bench_report.keep(where, results)
    bench_report.write_documents()


if __name__ == "__main__":
    main()
