#!/usr/bin/env python3
"""Puts the figures of opxml-bench into docs/performance.md and draws its plots.

report.py RESULTS.json TABLE.md DOCS-FOLDER     (scripts/bench calls it)

Needs nothing but Python's own library. What stands outside the two markers of
performance.md is left alone.
"""
import json
import math
import pathlib
import platform
import re
import sys

BEGIN = "<!-- written by scripts/bench: begin -->"
END = "<!-- written by scripts/bench: end -->"
INK, GREY, GRID, BLUE, ORANGE = "#222222", "#666666", "#dddddd", "#2b6cb0", "#c05621"
PHASES = [
    ("parse", "XML parser, names and limits", "#4a5568"),
    ("read", "reading the file", "#2b6cb0"),
    ("records", "records", "#c05621"),
    ("rest", "rest", "#805ad5"),
]


def counters(results, name):
    """The runs of one benchmark that were measured."""
    runs = [run for run in results["benchmarks"] if re.match(rf"{name}(/|$)", run["name"])]
    return [run for run in runs if not run.get("error_occurred")]


def text(x, y, content, anchor="start", colour=INK, size=13):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}" font-size="{size}">{content}</text>'


def line(x1, y1, x2, y2, colour=GRID, width=1):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}" stroke-width="{width}"/>'


def drawing(width, height, title, parts):
    head = (
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}" '
        f'font-family="sans-serif" role="img">\n<title>{title}</title>\n'
        f'<rect width="{width}" height="{height}" fill="#ffffff"/>\n'
    )
    return head + "\n".join(parts) + "\n</svg>\n"


def curve_plot(points):
    """CPU seconds against the number of types, both axes logarithmic."""
    width, height, left, right, top, bottom = 660, 360, 60, 150, 45, 50
    low, high = math.log10(points[0]["types"]), math.log10(points[-1]["types"])
    values = [point[key] for point in points for key in ("load", "bare")]
    floor, ceiling = math.floor(math.log10(min(values))), math.log10(max(values) * 1.3)

    def place(types, seconds):
        x = left + (math.log10(types) - low) / (high - low) * (width - left - right)
        y = height - bottom - (math.log10(seconds) - floor) / (ceiling - floor) * (height - top - bottom)
        return x, y

    parts = [text(left, 24, "CPU seconds of a start-up load, by number of types", size=15)]
    for power in range(floor, math.floor(ceiling) + 1):
        _, y = place(points[0]["types"], 10**power)
        parts += [line(left, y, width - right, y), text(left - 8, y + 4, f"{10.0**power:g} s", "end", GREY)]
    for point in points:
        x, _ = place(point["types"], 1)
        parts.append(text(x, height - bottom + 20, f"{point['types']:,.0f}", "middle", GREY))
    parts.append(text((left + width - right) / 2, height - 10, "device types, 96 KB each", "middle", GREY))
    for key, label, colour, lift in (("bare", "bare parse", ORANGE, 12), ("load", "load", BLUE, -4)):
        dots = [place(point["types"], point[key]) for point in points]
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in dots)
        dashes = ' stroke-dasharray="6 4"' if key == "bare" else ""
        parts.append(f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"{dashes}/>')
        parts += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3.5" fill="{colour}"/>' for x, y in dots]
        x, y = dots[-1]
        parts.append(text(x + 10, y + lift, f"{label} {points[-1][key]:.1f} s", colour=colour))
    return drawing(width, height, "Load time against number of types", parts)


def phase_plot(phases):
    """One stacked bar: where the time of one file goes."""
    width, left, bar = 640, 20, 560
    times = [(label, max(phases[key], 0.0), colour) for key, label, colour in PHASES]
    total = sum(time for _, time, _ in times)
    parts = [text(left, 24, f"Where the {total:.2f} ms of a 96 KB file go", size=15)]
    x = left
    for row, (label, time, colour) in enumerate(times):
        share = time / total
        parts.append(f'<rect x="{x:.1f}" y="45" width="{share * bar:.1f}" height="40" fill="{colour}"/>')
        x += share * bar
        y = 115 + 22 * row
        parts.append(f'<rect x="{left}" y="{y - 11}" width="14" height="14" fill="{colour}"/>')
        parts.append(text(left + 24, y + 1, f"{label}: {time:.2f} ms, {share * 100:.0f} %"))
    return drawing(width, 120 + 22 * len(times), "Where the time of a load goes", parts)


def curve_table(points):
    rows = [
        "| types | XML | load, CPU | load, elapsed | with two threads | bare parse, CPU | CPU ÷ bare parse |",
        "|---:|---:|---:|---:|---:|---:|---:|",
    ]
    for point in points:
        rows.append(
            f"| {point['types']:,.0f} | {point['megabytes']:,.0f} MB | {point['load']:.2f} s | {point['wall']:.2f} s | {point['wall2']:.2f} s "
            f"| {point['bare']:.2f} s | {point['load'] / point['bare']:.2f} |"
        )
    return "\n".join(rows) + "\n"


def variant_table(runs):
    rows = ["| 1,000 types | load, CPU | memory held |", "|---|---:|---:|"]
    rows += [f"| {run['label']} | {run['load']:.2f} s | {run['held']:.0f} MB |" for run in runs]
    return "\n".join(rows) + "\n"


def machine(results):
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    cores = results["context"]["num_cpus"]
    load = results["context"]["load_avg"][0]
    busy = f" **It had other work at the time** (load average {load:.1f})." if load > 1.5 * cores else ""
    return f"Machine: {cores} cores at {results['context']['mhz_per_cpu'] / 1000:.1f} GHz, {system}; release build.{busy}"


def main():
    results = json.loads(pathlib.Path(sys.argv[1]).read_text())
    table = pathlib.Path(sys.argv[2]).read_text()
    docs = pathlib.Path(sys.argv[3])

    points = sorted(counters(results, "curve"), key=lambda run: run["types"])
    (docs / "load-time.svg").write_text(curve_plot(points))
    (docs / "load-phases.svg").write_text(phase_plot(counters(results, "load/phases")[0]))

    page = docs / "performance.md"
    before, _, rest = page.read_text().partition(BEGIN)
    _, _, after = rest.partition(END)
    figures = f"\n{machine(results)}\n\n{table}\n{curve_table(points)}\n{variant_table(counters(results, 'variant'))}"
    page.write_text(before + BEGIN + figures + END + after)


if __name__ == "__main__":
    main()
