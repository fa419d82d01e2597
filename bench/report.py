"""Tells what a run of ravix_bench reached, and draws it.

usage: report.py RESULTS.json TARGETS.tsv PICTURE.svg
"""

import json
import sys

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams.update({"svg.fonttype": "none", "svg.hashsalt": "ravix", "font.family": "sans-serif", "font.size": 9})
import matplotlib.pyplot as plt

MET, MISSED, TARGET = "#2a7f62", "#c8553d", "#222222"


def medians(path):
    """Nanoseconds of each row, "<work>/<way>"."""
    with open(path, encoding="utf-8") as file:
        results = json.load(file)
    unit = {"ns": 1, "us": 1e3, "ms": 1e6}
    times = {
        each["run_name"]: each["cpu_time"] * unit[each["time_unit"]]
        for each in results["benchmarks"]
        if each.get("aggregate_name") == "median"
    }
    return results["context"], times


def targets(path):
    with open(path, encoding="utf-8") as file:
        for line in file:
            if not line.startswith("#"):
                row, peer, reach, work = line.rstrip("\n").split("\t")
                yield row, peer, reach, work


def judge(times, row, peer, reach):
    """Ours, the peer's, their ratio, how far beyond the target (1: just met; none for a floor, which shows only)."""
    if reach.startswith("per "):
        per_element = [times[name] / int(name.rsplit("/", 1)[1]) for name in (row, peer)]
        limit = float(reach.split()[1])
        return *per_element, per_element[0] / per_element[1], limit * per_element[1] / per_element[0]
    ours = times[f"{row}/ravix"]
    if reach.endswith(" ns"):
        return ours, None, None, float(reach.split()[0]) / ours
    theirs = times[f"{row}/{peer}"]
    if reach == "floor":
        return ours, theirs, ours / theirs, None
    if reach.startswith("at most "):
        return ours, theirs, ours / theirs, float(reach.split()[2]) * theirs / ours
    return ours, theirs, theirs / ours, theirs / ours / float(reach.split()[0])


def duration(nanoseconds):
    for limit, factor, unit in ((1e3, 1, "ns"), (1e6, 1e3, "us"), (float("inf"), 1e6, "ms")):
        if nanoseconds < limit:
            return f"{nanoseconds / factor:.3g} {unit}"
    return ""


def table(times, wanted):
    judged, last = [], ""
    print(f"{'work':<32} {'ours':>9} {'peer':>9}  {'':<12} {'ratio':>6}  {'target':<12}")
    for row, peer, reach, work in wanted:
        ours, theirs, ratio, margin = judge(times, row, peer, reach)
        kind = "x" if reach.endswith(" x") else ""
        against = peer if "/" not in peer else "59 of them"
        print(
            f"{work:<32} {duration(ours):>9} {duration(theirs) if theirs else '':>9}  {against.replace('-', ''):<12} "
            f"{f'{ratio:.3g}{kind}' if ratio else '':>6}  {reach:<12} "
            f"{'' if margin is None else 'met' if margin >= 1 else 'NOT MET'}".rstrip()
        )
        last = work or last
        if margin is not None:
            judged.append((f"{last} / {against.replace('_', ' ')}", theirs and theirs / ours, margin))
    met = sum(margin >= 1 for _, _, margin in judged)
    return judged, f"{met} of {len(judged)} targets met"


def draw_speeds(axes, judged):
    """A bar from 1, as fast as the peer, to how many times as fast ours is; a mark where it has to reach."""
    judged = [each for each in reversed(judged) if each[1]]
    speeds = [speed for _, speed, _ in judged]
    rows = range(len(judged))
    axes.barh(rows, [speed - 1 for speed in speeds], left=1, height=0.7,
              color=[MET if margin >= 1 else MISSED for _, _, margin in judged])
    wanted = [speed / margin for _, speed, margin in judged]
    axes.plot(wanted, rows, linestyle="none", marker="|", markersize=9, markeredgewidth=2, color=TARGET)
    for row, speed, target in zip(rows, speeds, wanted):
        axes.annotate(f"{speed:.3g}", (max(speed, target, 1), row), xytext=(5, -3), textcoords="offset points", fontsize=8)
    axes.axvline(1, color=TARGET, linewidth=0.8)
    axes.set_yticks(rows, [label for label, _, _ in judged])
    axes.set_ylim(-0.7, len(judged) - 0.3)
    axes.set_xscale("log")
    ticks = [0.5, 1, 2, 5, 10, 20, 50, 100]
    axes.set_xticks(ticks, [f"{tick:g}" for tick in ticks])
    axes.xaxis.set_minor_locator(matplotlib.ticker.NullLocator())
    axes.set_xlim(0.3, 2.2 * max(speeds))
    axes.set_xlabel("times as fast as the peer")
    axes.set_title("Work / peer", loc="left")
    axes.legend(
        handles=[
            matplotlib.patches.Patch(color=MET, label="target reached"),
            matplotlib.patches.Patch(color=MISSED, label="not reached"),
            matplotlib.lines.Line2D([], [], linestyle="none", marker="|", markersize=9, markeredgewidth=2, color=TARGET,
                                    label="target"),
        ],
        loc="lower right",
        frameon=False,
    )


def draw_growth(axes, times):
    works = {}
    for name, time in times.items():
        if name.startswith("growth/"):
            _, work, count = name.split("/")
            works.setdefault(work, []).append((int(count), time))
    for work, points in works.items():
        points.sort()
        (line,) = axes.plot(*zip(*((count, time / count) for count, time in points)), marker="o", markersize=3)
        axes.annotate(work.replace("_", " "), (points[-1][0], points[-1][1] / points[-1][0]), xytext=(5, -3),
                      textcoords="offset points", color=line.get_color())
    axes.set_xscale("log")
    axes.set_yscale("log")
    axes.set_xlim(7, 1e6)
    axes.set_xticks([10, 100, 1000, 10000, 100000], ["10", "100", "1,000", "10,000", "100,000"])
    axes.set_ylim(0.5)
    axes.yaxis.set_major_formatter(matplotlib.ticker.FormatStrFormatter("%g"))
    axes.grid(alpha=0.3)
    axes.set_xlabel("elements")
    axes.set_title("Nanoseconds per element", loc="left")


def main(results, wanted, picture):
    context, times = medians(results)
    judged, met = table(times, list(targets(wanted)))
    load = " ".join(f"{each:.1f}" for each in context["load_avg"])
    print(f"{met}; {context['num_cpus']} processors of {context['mhz_per_cpu']} MHz, load {load}")
    figure, (left, right) = plt.subplots(1, 2, figsize=(10.5, 7.5), width_ratios=(1, 1.05), layout="constrained")
    draw_speeds(left, judged)
    draw_growth(right, times)
    for axes in (left, right):
        axes.spines[["top", "right"]].set_visible(False)
    figure.savefig(picture, metadata={"Date": None}, facecolor="white")


main(*sys.argv[1:])
