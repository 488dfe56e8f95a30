"""Ten thousand small projects for bench/report.py: made once, as links to the files of one."""
import os
import subprocess

PILES, CASES = "1x3", "3"
COUNTS = (100, 1000, 10000)
GROUP = 100  # projects of a folder of the tree


def make(build, folder):
    """Lists of projects by their count, each in a folder of its own, and the list of as many in one folder."""
    one, own, flat = (folder / name for name in ("many-one", "many-own", "many-flat"))
    if not one.exists():
        subprocess.run([build / "make-sample", one, "--preset", "bent", "--name", "p", "--cases", CASES, "--piles", PILES],
                       check=True, stdout=subprocess.DEVNULL)
    names = [f"p{number:05d}" for number in range(COUNTS[-1])]
    paths = [own / f"{number // GROUP:03d}" / name / name for number, name in enumerate(names)]
    links(one, paths)
    links(one, [flat / name for name in names])
    lists = {count: write_list(folder / f"many-{count}.txt", paths[:count]) for count in COUNTS}
    return lists, write_list(folder / "many-flat.txt", [flat / name for name in names])


def links(one, paths):
    """Projects with the files of the one."""
    if paths[-1].with_suffix(".in").exists():
        return
    for path in paths:
        path.parent.mkdir(parents=True, exist_ok=True)
        for file in one.iterdir():
            os.link(file, path.with_suffix(file.suffix))


def write_list(path, projects):
    path.write_text("".join(f"{project}\n" for project in projects), encoding="ascii")
    return path


def file_list(path):
    """The files of the projects of a list, in their order, for a program that does no more than read them."""
    result = path.with_suffix(".files")
    projects = path.read_text(encoding="ascii").split()
    endings = sorted(entry.name[entry.name.index("."):] for entry in (path.parent / "many-one").iterdir())
    result.write_text("".join(f"{project}{ending}\0" for project in projects for ending in endings), encoding="ascii")
    return result
