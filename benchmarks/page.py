"""Measures whole conversions against other ways to do the same work, and writes docs/performance.md
with its charts.
    page.py BIN STORE STARTS OUT
BIN holds the built programs, STORE is an empty folder in memory-backed storage, STARTS a file with
the milliseconds of each start of the program, and OUT the folder of the page."""

import os
import re
import resource
import shutil
import statistics
import subprocess
import sys

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt  # noqa: E402

BIN, STORE, STARTS, OUT = sys.argv[1:]
BENCH = os.path.join(BIN, "window-bench")
SOURCE, TARGET = os.path.join(STORE, "source"), os.path.join(STORE, "target")
RUNS = int(os.environ.get("RUNS", "5"))
WORKS = [(2000, 64, 64), (1000, 640, 480), (1, 8192, 8192)]
COUNTS = [10, 100, 1000, 10_000, 100_000]
FEW = 100  # pictures for programs that need a process for each

PILLOW = """
import os, sys
from PIL import Image
Image.MAX_IMAGE_PIXELS = None
source, target, width, height = sys.argv[1:3] + [int(text) for text in sys.argv[3:]]
palette = bytes(value for i in range(256) for value in (i, i, i))
for name in os.listdir(source):
    if not name.endswith(".bmp"):
        continue
    with open(os.path.join(source, name), "rb") as file:
        data = file.read()
    image = Image.frombytes("P", (width, height), data[44 : 44 + width * height])
    image.putpalette(palette)
    image.save(os.path.join(target, name))
"""


def processor_time():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def ours(what, work):
    """Processor time in seconds, and peak memory in MB."""
    output = subprocess.run([BENCH, STORE, what, *map(str, work)], check=True,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
    numbers = [float(text) for text in output.split()]
    return (numbers[0], numbers[3]) if numbers else (0, 0)


def timed(commands):
    begin = processor_time()
    for command in commands:
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return processor_time() - begin


def copy(work):
    return timed([["cp", "-r", SOURCE + "/.", TARGET]])


def pillow(work):
    return timed([[sys.executable, "-c", PILLOW, SOURCE, TARGET, str(work[1]), str(work[2])]])


def each_of_few(command, work):
    names = sorted(name for name in os.listdir(SOURCE) if name.endswith(".bmp"))[:FEW]
    used = timed([command(os.path.join(SOURCE, name), os.path.join(TARGET, name))
                  for name in names])
    return used * work[0] / len(names)


def image_magick(work):
    return each_of_few(lambda source, target: [
        "convert", "-size", f"{work[1]}x{work[2]}+44", "-depth", "8", "gray:" + source,
        "bmp3:" + target], work)


def netpbm(work):
    return each_of_few(lambda source, target: [
        "sh", "-c", 'rawtopgm -headerskip 44 "$1" "$2" "$3" | ppmtobmp -bpp=8 >"$4"', "sh",
        str(work[1]), str(work[2]), source, target], work)


WAYS = [("The program, in its window", lambda work: ours("window", work)[0]),
        ("The same with palette search and swatches", lambda work: ours("search", work)[0]),
        ("cp, which copies and converts nothing", copy),
        ("Pillow, one process", pillow),
        ("ImageMagick, a process each", image_magick),
        ("netpbm, two processes each", netpbm)]


def clear():
    shutil.rmtree(TARGET, ignore_errors=True)
    os.makedirs(TARGET)


def rounds(ways, work):
    """For each way, its ratios to the plain loop and its processor times, of all rounds."""
    ratios, times = [[] for _ in ways], [[] for _ in ways]
    for _ in range(RUNS):
        clear()
        plain = ours("plain", work)[0]
        for i, (_, run) in enumerate(ways):
            clear()
            used = run(work)
            times[i].append(used)
            ratios[i].append(used / plain)
    return ratios, times


def in_words(work):
    return f"{work[0]:,} of {work[1]} × {work[2]}"


def spread(values):
    return f"{statistics.median(values):.2f} ({min(values):.2f} to {max(values):.2f})"


def compare(page):
    page.append("## Against other ways\n")
    page.append("Processor time for the whole work as a multiple of the plain loop's.\n")
    page.append("| | " + " | ".join(in_words(work) for work in WORKS) + " |")
    page.append("|---" * (len(WORKS) + 1) + "|")
    columns = []
    for work in WORKS:
        ours("make", work)
        columns.append(rounds(WAYS, work)[0])
    for i, (name, _) in enumerate(WAYS):
        page.append(f"| {name} | " + " | ".join(spread(column[i]) for column in columns) + " |")
    figure, axes = plt.subplots(figsize=(8, 4))
    height = 0.8 / len(WORKS)
    for j, work in enumerate(WORKS):
        middle = [statistics.median(ratios) for ratios in columns[j]]
        places = [i + height * j for i in range(len(WAYS))]
        axes.barh(places, middle, height, label=in_words(work))
    axes.axvline(1, color="black", linewidth=1)
    axes.set_xscale("log")
    axes.set_yticks([i + height for i in range(len(WAYS))], [name for name, _ in WAYS])
    axes.invert_yaxis()
    axes.set_xlabel("processor time, plain loop = 1")
    axes.legend()
    save(figure, "performance-ways.svg")
    page.append("\n![The same as bars](performance-ways.svg)\n")


def scale(page):
    page.append("## From 10 to 100,000 pictures\n")
    page.append("Of 64 × 64, through the window. The cost of one picture, in microseconds of "
                "processor time, and the peak of memory.\n")
    page.append("| Pictures | Each | Plain loop | Ratio | Memory |")
    page.append("|---|---|---|---|---|")
    each = []
    for count in COUNTS:
        work = (count, 64, 64)
        ours("make", work)
        memory = []

        def window(work):
            used, peak = ours("window", work)
            memory.append(peak)
            return used

        plain = [("plain", lambda work: ours("plain", work)[0]), ("window", window)]
        ratios, times = rounds(plain, work)
        micro = [1e6 * statistics.median(used) / count for used in times]
        each.append(micro)
        page.append(f"| {count:,} | {micro[1]:.1f} µs | {micro[0]:.1f} µs | {spread(ratios[1])} | "
                    f"{statistics.median(memory):.1f} MB |")
    figure, axes = plt.subplots(figsize=(7, 3.5))
    for name, values in zip(("plain loop", "the program"), zip(*each)):
        axes.plot(COUNTS, values, marker="o", label=name)
    axes.set_xscale("log")
    axes.set_ylim(bottom=0)
    axes.set_xlabel("pictures in the run")
    axes.set_ylabel("µs each")
    axes.legend()
    save(figure, "performance-scale.svg")
    page.append("\n![The cost of a picture by the size of the run](performance-scale.svg)\n")


def waiting(page):
    page.append("## Waiting\n")
    page.append("| | Median | At most |")
    page.append("|---|---|---|")
    with open(STARTS) as file:
        starts = [float(line.split()[0]) for line in file]
    page.append("| from the start of the program until its window is shown | "
                f"{statistics.median(starts):.0f} ms | {max(starts):.0f} ms |")
    output = subprocess.run([BENCH, STORE, "windows"], check=True, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True).stdout
    for line in output.splitlines():
        found = re.match(r"(.*?) +([\d.]+) ms, at most +([\d.]+)", line)
        if found:
            page.append("| {} | {} ms | {} ms |".format(*found.groups()))


def save(figure, name):
    figure.tight_layout()
    figure.savefig(os.path.join(OUT, name), metadata={"Date": None})


def main():
    matplotlib.rcParams["svg.hashsalt"] = "raster-mill"
    with open("/proc/cpuinfo") as file:
        processor = re.search("model name\\s*: (.*)", file.read())
    page = ["# Performance\n",
            "Written by `scripts/bench --page` from one run on "
            f"{os.cpu_count()} cores ({processor.group(1) if processor else 'unknown'}), with all "
            "files in memory. The plain loop does the least that the work can be: for each file it "
            "reads it whole and writes headers, colours and reversed rows, without a window and "
            "without checks. Each figure is the median of "
            f"{RUNS} runs in fresh processes, with the lowest and highest. ImageMagick and netpbm are measured on at most "
            f"{FEW} of the pictures.\n"]
    compare(page)
    scale(page)
    waiting(page)
    with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "limits.md")) as file:
        page.append("\n" + file.read().rstrip())
    with open(os.path.join(OUT, "performance.md"), "w") as file:
        file.write("\n".join(page) + "\n")


main()
