# SPDX-License-Identifier: MIT
"""What the released programs are made of, for packaging/sbom and packaging/check-sbom.

A component's `part` is its number in THIRD-PARTY-NOTICES.txt; those that are not handed on have none. `package` is the Debian
package that its version comes from, `source` a source package that tools/windows-libraries pins. `mark` is a text that
its code leaves in every program that it is linked into.
"""
import collections
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent

Component = collections.namedtuple(
    "Component", "id name part package source licence copyright mark comment", defaults=("",)
)

# The same licence and traces for both platforms; each has a version of its own.
GCC_RUNTIME = Component(
    "gcc-runtime-linux",
    "libstdc++ and libgcc",
    3,
    "libstdc++-12-dev",
    None,
    "GPL-3.0-or-later WITH GCC-exception-3.1 AND MIT AND (Apache-2.0 OR BSL-1.0)",
    "Copyright (C) Free Software Foundation, Inc.",
    b"basic_string::append",
    "The MIT part is the reading of numbers (fast_float), Apache-2.0 OR BSL-1.0 the writing (Ryu).",
)

COMPONENTS = [
    Component(
        "mingw-w64-runtime",
        "mingw-w64 run-time",
        1,
        "mingw-w64-i686-dev",
        None,
        "ZPL-2.1 AND LicenseRef-gdtoa AND LicenseRef-mingw-pformat",
        "Copyright (c) 2009-2016 the mingw-w64 project",
        b"Mingw-w64 runtime failure",
    ),
    Component(
        "winpthreads",
        "winpthreads",
        2,
        "mingw-w64-i686-dev",
        None,
        "MIT AND BSD-3-Clause",
        "Copyright (c) 2011-2016 mingw-w64 project",
        b"(((rwlock_t *)*rwl)->valid == LIFE_RWLOCK)",
    ),
    GCC_RUNTIME,
    GCC_RUNTIME._replace(id="gcc-runtime-windows", package="g++-mingw-w64-i686-posix"),
    Component(
        "cli11",
        "CLI11",
        4,
        "libcli11-dev",
        None,
        "BSD-3-Clause",
        "Copyright (c) 2017-2021 University of Cincinnati",
        b"3CLI10ParseErrorE",
    ),
    Component(
        "nlohmann-json",
        "JSON for Modern C++",
        5,
        "nlohmann-json3-dev",
        None,
        "MIT",
        "Copyright (c) 2013-2022 Niels Lohmann",
        b"[json.exception.",
    ),
    Component("sqlite-linux", "SQLite", 6, "libsqlite3-dev", None, "blessing", "NONE", b"SQLite format 3"),
    Component("sqlite-windows", "SQLite", 6, None, "sqlite3", "blessing", "NONE", b"SQLite format 3"),
    Component(
        "libxlsxwriter-linux",
        "libxlsxwriter",
        7,
        "libxlsxwriter4",
        None,
        "BSD-2-Clause AND BSD-3-Clause AND MIT AND Zlib AND MPL-2.0 AND LicenseRef-public-domain-md5",
        "Copyright 2014-2021 John McNamara",
        b"libxlsxwriter.so.4",
        "The shared library of Debian is loaded when a workbook is written; it is not part of the packages.",
    ),
    Component(
        "libxlsxwriter-windows",
        "libxlsxwriter",
        7,
        None,
        "libxlsxwriter",
        "BSD-2-Clause AND BSD-3-Clause AND Zlib AND MPL-2.0",
        "Copyright 2014-2021 John McNamara",
        b"xl/workbook.xml",
        "With its own copies of queue.h (BSD-3-Clause), minizip (Zlib) and tmpfileplus (MPL-2.0, unchanged); without "
        "its conversion of numbers and without MD5.",
    ),
    Component(
        "zlib",
        "zlib",
        8,
        "libz-mingw-w64-dev",
        None,
        "Zlib",
        "Copyright (C) 1995-2022 Jean-loup Gailly and Mark Adler",
        b" deflate 1.",
    ),
    Component(
        "nsis",
        "NSIS",
        9,
        "nsis",
        None,
        "Zlib",
        "Copyright (C) 1999-2021 Contributors",
        b"NullsoftInst",
        "The installer's and the uninstaller's own code.",
    ),
    Component(
        "glibc",
        "GNU C Library",
        None,
        "libc6",
        None,
        "LGPL-2.1-or-later",
        "Copyright (C) Free Software Foundation, Inc.",
        b"GLIBC_2.",
        "It is the C library of the Linux system, and no part of the packages.",
    ),
]

# The programs, by the end of their path in a package: what is linked into each, and what each loads.
WINDOWS_BASE = ["mingw-w64-runtime", "winpthreads", "gcc-runtime-windows"]
PROGRAMS = {
    "bin/lumerin": (["gcc-runtime-linux", "cli11", "nlohmann-json", "sqlite-linux"], ["libxlsxwriter-linux", "glibc"]),
    "bin/lumerin.exe": (
        [*WINDOWS_BASE, "cli11", "nlohmann-json", "sqlite-windows", "libxlsxwriter-windows", "zlib"],
        [],
    ),
    "module/Lumerin.dll": (WINDOWS_BASE, []),
    "setup.exe": (["nsis"], []),
}
# The shared libraries that programs may name, and of which component they are; those of Windows are of none.
SHARED = {"libc.so.6": "glibc", "libm.so.6": "glibc", "ld-linux-x86-64.so.2": "glibc"}
OF_WINDOWS = {
    "advapi32.dll",
    "comctl32.dll",
    "comdlg32.dll",
    "gdi32.dll",
    "kernel32.dll",
    "msvcrt.dll",
    "ole32.dll",
    "oleaut32.dll",
    "shell32.dll",
    "shlwapi.dll",
    "user32.dll",
    "version.dll",
    "winspool.drv",
    "ws2_32.dll",
}

# Licences that the list of SPDX does not have: their text is in the notices, from the first to the last of these words.
EXTRACTED = {
    "LicenseRef-gdtoa": (
        "gdtoa",
        "Permission to use, copy, modify, and distribute this software and\nits documentation",
        "THIS SOFTWARE.",
    ),
    "LicenseRef-mingw-pformat": (
        "mingw_pformat",
        "This is free software.  You may redistribute",
        "use of this software.",
    ),
    "LicenseRef-public-domain-md5": ("public domain", "The shared library that Debian distributes", "has the texts."),
}


def notices():
    return (ROOT / "THIRD-PARTY-NOTICES.txt").read_text(encoding="utf-8")


def release_version():
    return re.search(
        r"^project\(Lumerin VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"), re.M
    )[1]


def debian_version(component):
    """The version of Debian's package, as it is installed here or pinned for Windows; empty where it is not installed."""
    if component.source:
        return re.search(
            rf"\b{component.source}=([^\s)]+)", (ROOT / "tools" / "windows-libraries").read_text(encoding="utf-8")
        )[1]
    done = subprocess.run(["dpkg-query", "-W", "-f", "${Version}\n", component.package], capture_output=True, text=True)
    return done.stdout.split("\n")[0]


def upstream_version(component):
    version = re.sub(r"^\d+:|-[^-]*$", "", debian_version(component))
    return re.sub(r"[+~](dfsg|ds).*$", "", version)


def program_of(path):
    """The key in PROGRAMS of a file in a package, or nothing."""
    return next((end for end in PROGRAMS if path == end or path.endswith(("/" + end, "-" + end))), None)
