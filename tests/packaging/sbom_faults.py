#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""tests/packaging/sbom_faults.py FOLDER: packaging/check-sbom finds each fault that is put into the bill of materials of FOLDER.

Exit status 1 and a line for each fault that it does not see.
"""
import copy
import importlib.machinery
import importlib.util
import json
import pathlib
import sys

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
loader = importlib.machinery.SourceFileLoader("check_sbom", str(ROOT / "packaging" / "check-sbom"))
check_sbom = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_sbom", loader))
loader.exec_module(check_sbom)


def component(document, name):
    return next(p for p in document["packages"] if p["SPDXID"] == "SPDXRef-Component-" + name)


def without_field(document):
    del document["packages"][0]["downloadLocation"]


def licence_of(text):
    def change(document):
        component(document, "zlib")["licenseDeclared"] = text

    return change


# What is changed, and a word of the fault that must be found.
FAULTS = {
    "a required field is missing": (without_field, "lacks downloadLocation"),
    "an unknown field": (lambda d: d["packages"][0].update(downloadlocation="NONE"), "unknown field"),
    "another version of the form": (lambda d: d.update(spdxVersion="SPDX-2.2"), "spdxVersion"),
    "a time without its zone": (lambda d: d["creationInfo"].update(created="2026-01-02T03:04:05"), "created"),
    "a creator without its kind": (lambda d: d["creationInfo"].update(creators=["Lumerin"]), "creators[0]"),
    "a namespace with a fragment": (lambda d: d.update(documentNamespace="urn:uuid:1#2"), "documentNamespace"),
    "an identifier with a blank": (lambda d: d["files"][0].update(SPDXID="SPDXRef-File 1"), "wrong form"),
    "one identifier twice": (lambda d: d["files"][0].update(SPDXID=d["files"][1]["SPDXID"]), "twice"),
    "a relationship to nothing": (
        lambda d: d["relationships"][3].update(relatedSpdxElement="SPDXRef-None"),
        "refers to nothing",
    ),
    "an unknown relationship": (lambda d: d["relationships"][3].update(relationshipType="LINKS"), "relationshipType"),
    "a licence that is none": (licence_of("ZLIB-Licence"), "ZLIB-Licence"),
    "an expression that ends early": (licence_of("MIT AND"), "licenseDeclared"),
    "a licence without its text": (licence_of("LicenseRef-other"), "without its text"),
    "an exception in the place of a licence": (licence_of("GCC-exception-3.1"), "licenseDeclared"),
    "a checksum of another file": (
        lambda d: d["files"][0]["checksums"][0].update(checksumValue="0" * 40),
        "verification code",
    ),
    "a checksum in capitals": (lambda d: d["files"][0]["checksums"][1].update(checksumValue="A" * 64), "wrong form"),
    "a list without entries": (lambda d: d["packages"][0].update(checksums=[]), "empty"),
    "a number for a text": (lambda d: d["packages"][0].update(versionInfo=1.1), "no text"),
    "a file of no package": (
        lambda d: d["relationships"].remove(next(r for r in d["relationships"] if r["relationshipType"] == "CONTAINS")),
        "verification code",
    ),
}


def main():
    path = next(pathlib.Path(sys.argv[1]).glob("*.spdx.json"))
    document = json.loads(path.read_text(encoding="utf-8"))
    status = 0
    for what, (change, word) in FAULTS.items():
        changed = copy.deepcopy(document)
        change(changed)
        checker = check_sbom.Checker()
        checker.document(changed)
        if not any(word in fault for fault in checker.faults):
            print(f"sbom_faults: {what}: not found, but {checker.faults[:3]}")
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
