#!/usr/bin/env python3
"""The wire benchmark: kestrel-cli read, write and verify of a fully populated
configuration against kestrel-sim paced at 9600, 19200 and 38400 baud.

For each run it reports the exchanges and the bytes each way as the simulator counted
them, the wire-time lower bound (bytes x 11 bits / baud), the client's measured wall
time and its ratio to the bound, the client's CPU time (user + system, from the
kernel's accounting of the child) as a share of wall time, and the client's peak
resident memory. Targets: wall <= 1.05 x bound, CPU <= 2 % of wall.

Usage: wire_bench.py BIN_DIR FULL.dat [--rates 9600,19200,38400] [--markdown OUT.md]
"""
import argparse
import os
import re
import signal
import subprocess
import sys
import tempfile
import time

WALL_TARGET = 1.05
CPU_TARGET = 0.02
CHANGES_TARGET = 0.05  # Write Changes of one step, as a share of Write All


def one_step_changed(dat, out):
    """FULL.dat with one parameter of its first step flipped: one pin's one step changed."""
    with open(dat, newline="") as f:
        lines = f.read().split("\r\n")
    for i, line in enumerate(lines):
        fields = line.split(",")
        if fields[0].strip() == '"Ins"':
            fields[3] = str(int(fields[3]) ^ 1)
            lines[i] = ",".join(fields)
            break
    with open(out, "w", newline="") as f:
        f.write("\r\n".join(lines))


def start_sim(bin_dir, rate, dat):
    # The module carries eXtended address 17, as the configuration says (Write All, which
    # seeds it from the file, leaves the eXtended address alone).
    sim = subprocess.Popen([os.path.join(bin_dir, "kestrel-sim"), "--pace-baud", str(rate), "--xaddress", "17", "--load", dat],
                           stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    path = sim.stdout.readline().strip()
    if not path.startswith("/"):
        sim.kill()
        _, err = sim.communicate()
        raise RuntimeError("kestrel-sim did not offer a terminal: " + path + err)
    return sim, path


def stop_sim(sim):
    sim.send_signal(signal.SIGTERM)
    _, err = sim.communicate(timeout=30)
    m = re.search(r"kestrel-sim-stats: exchanges=(\d+) bytes_in=(\d+) bytes_out=(\d+) "
                  r"wire_seconds=([0-9.]+) baud=(\d+)", err)
    if not m:
        raise RuntimeError("no statistics line from kestrel-sim:\n" + err)
    return {"exchanges": int(m.group(1)), "bytes_in": int(m.group(2)), "bytes_out": int(m.group(3)),
            "wire": float(m.group(4)), "baud": int(m.group(5))}


def run_client(bin_dir, args):
    """Runs kestrel-cli; returns exit status, wall seconds, CPU seconds, peak RSS (KiB)."""
    env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    start = time.monotonic()
    child = subprocess.Popen([os.path.join(bin_dir, "kestrel-cli")] + args,
                             stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, env=env)
    err = b""
    # Drain stderr so that the child never blocks on it, then reap it with its rusage.
    for chunk in iter(lambda: child.stderr.read(4096), b""):
        err += chunk
    _, status, usage = os.wait4(child.pid, 0)
    wall = time.monotonic() - start
    child.returncode = os.waitstatus_to_exitcode(status)
    return child.returncode, wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss, err.decode(errors="replace")


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("bin_dir")
    ap.add_argument("dat")
    ap.add_argument("--rates", default="9600,19200,38400")
    ap.add_argument("--markdown")
    opts = ap.parse_args()
    rates = [int(r) for r in opts.rates.split(",")]

    rows = []
    failed = False
    with tempfile.TemporaryDirectory(prefix="kestrel-bench.") as tmp:
        changed = os.path.join(tmp, "one-step.dat")
        one_step_changed(opts.dat, changed)
        for rate in rates:
            for command in ("read", "write", "verify", "changes"):
                sim, pty = start_sim(opts.bin_dir, rate, opts.dat)
                args = {"read": ["read", os.path.join(tmp, "read-%d.dat" % rate)],
                        "write": ["write", opts.dat], "verify": ["verify", opts.dat],
                        # The module holds FULL.dat; only the one changed step differs.
                        "changes": ["write", changed, "--changes-from", opts.dat]}[command]
                try:
                    status, wall, cpu, rss, err = run_client(
                        opts.bin_dir, ["--port", pty, "--baud", str(rate)] + args)
                finally:
                    stats = stop_sim(sim)
                if status != 0:
                    failed = True
                    sys.stderr.write("kestrel-cli %s at %d baud ended with status %d:\n%s\n"
                                     % (command, rate, status, err[-2000:]))
                bound = (stats["bytes_in"] + stats["bytes_out"]) * 11.0 / rate
                rows.append({"rate": rate, "command": command, "status": status,
                             "exchanges": stats["exchanges"], "to_module": stats["bytes_in"],
                             "from_module": stats["bytes_out"], "bound": bound, "wall": wall,
                             "ratio": wall / bound if bound > 0 else float("inf"),
                             "cpu": cpu / wall if wall > 0 else 0.0, "rss": rss / 1024.0})
                r = rows[-1]
                print("%6d %-7s done: %.2f s wall, bound %.2f s" % (rate, command, wall, bound), flush=True)

    header = ("| baud | command | exchanges | bytes to module | bytes from module | wire bound (s) "
              "| wall (s) | wall / bound | client CPU / wall | client peak RSS (MiB) | status |")
    lines = [header, "|" + "---|" * 11]
    for r in rows:
        lines.append("| %d | %s | %d | %d | %d | %.2f | %.2f | %.3f | %.2f %% | %.1f | %s |" % (
            r["rate"], r["command"], r["exchanges"], r["to_module"], r["from_module"], r["bound"],
            r["wall"], r["ratio"], 100 * r["cpu"], r["rss"], "ok" if r["status"] == 0 else "exit %d" % r["status"]))
    table = "\n".join(lines)
    print()
    print(table)
    print()
    # A Write Changes of a few frames is mostly the program's start: it has its own target below.
    worst_ratio = max(r["ratio"] for r in rows if r["command"] != "changes")
    worst_cpu = max(r["cpu"] for r in rows)
    verdict = []
    verdict.append("wall / bound: worst %.3f (target <= %.2f): %s" % (
        worst_ratio, WALL_TARGET, "met" if worst_ratio <= WALL_TARGET else
        "MISSED by %.1f %% of the bound" % (100 * (worst_ratio - WALL_TARGET))))
    verdict.append("client CPU / wall: worst %.2f %% (target <= %.0f %%): %s" % (
        100 * worst_cpu, 100 * CPU_TARGET, "met" if worst_cpu <= CPU_TARGET else "MISSED"))
    for rate in rates:
        full = [r for r in rows if r["rate"] == rate and r["command"] == "write"]
        part = [r for r in rows if r["rate"] == rate and r["command"] == "changes"]
        if full and part:
            share = part[0]["wall"] / full[0]["wall"]
            verdict.append("write --changes-from (one step changed) at %d baud: %d of %d exchanges, "
                           "%.2f s of %.2f s wall = %.1f %% of Write All (target < %.0f %%): %s" % (
                               rate, part[0]["exchanges"], full[0]["exchanges"], part[0]["wall"],
                               full[0]["wall"], 100 * share, 100 * CHANGES_TARGET,
                               "met" if share < CHANGES_TARGET else "MISSED"))
    for v in verdict:
        print(v)
    if opts.markdown:
        with open(opts.markdown, "w") as f:
            f.write(table + "\n\n" + "\n".join("- " + v for v in verdict) + "\n")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
