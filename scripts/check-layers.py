#!/usr/bin/env python3
"""Checks that every source file includes only headers of its own layer and the layers below.

The layers, bottom to top, and what each may include besides itself:

    core/base
    core/ledger      base
    core/files       base, ledger
    core/statements  base, ledger
    core/rates       base
    core/analysis    base, ledger
    core/planning    base, ledger, analysis
    cli              every core layer
    app library      every core layer (app/model, app/settings, app/notifications)
    app screens      every core layer and the app library (app/screens, app/main.cpp)

The core includes no Qt header. Tests and benchmarks may include anything.

Usage: check-layers.py [ROOT]      lists every upward include and exits 1 when there is one
       check-layers.py --self-test  shows that an upward include is caught
"""

import pathlib
import re
import sys
import tempfile

CORE = ["core/base", "core/ledger", "core/files", "core/statements", "core/rates", "core/analysis", "core/planning"]
APP_LIBRARY = ["app/model", "app/settings", "app/notifications"]

# Each layer: the folders (or files) it owns and the folders it may include from.
LAYERS = {
    "core/base": ["core/base"],
    "core/ledger": ["core/base", "core/ledger"],
    "core/files": ["core/base", "core/ledger", "core/files"],
    "core/statements": ["core/base", "core/ledger", "core/statements"],
    "core/rates": ["core/base", "core/rates"],
    "core/analysis": ["core/base", "core/ledger", "core/analysis"],
    "core/planning": ["core/base", "core/ledger", "core/analysis", "core/planning"],
    "cli": CORE + ["cli"],
    **{folder: CORE + APP_LIBRARY for folder in APP_LIBRARY},
    "app/screens": CORE + APP_LIBRARY + ["app/screens"],
    "app/main.cpp": CORE + APP_LIBRARY + ["app/screens"],
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT_HEADER = re.compile(r"^Q[A-Za-z]|^Qt[A-Za-z]*/")


def layer_of(relative):
    """The longest layer name that owns the file, or None for files outside every layer."""
    owners = [name for name in LAYERS if relative == name or relative.startswith(name + "/")]
    return max(owners, key=len) if owners else None


def violations(root):
    root = pathlib.Path(root)
    found = []
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".hpp", ".cpp", ".h") or not path.is_file():
            continue
        relative = path.relative_to(root).as_posix()
        layer = layer_of(relative)
        if layer is None:
            continue
        allowed = LAYERS[layer]
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            bracket, header = match.groups()
            if bracket == "<":
                if layer.startswith("core/") and QT_HEADER.match(header):
                    found.append(f"{relative}:{number}: the core includes the Qt header <{header}>")
                continue
            target = layer_of(header)
            if target is None:
                continue
            if not any(header.startswith(folder + "/") or header == folder for folder in allowed):
                found.append(f"{relative}:{number}: {layer} includes {header} of the layer {target} above it")
    return found


def self_test():
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for relative, text in {
            "core/base/Money.hpp": "#include <string>\n",
            "core/ledger/Book.hpp": '#include "core/base/Money.hpp"\n',
            "core/files/Store.cpp": '#include "core/ledger/Book.hpp"\n',
        }.items():
            (root / relative).parent.mkdir(parents=True, exist_ok=True)
            (root / relative).write_text(text)
        if violations(root):
            print("self-test: a tree without upward includes was refused")
            return 1
        (root / "core/ledger/Book.hpp").write_text('#include "core/files/Store.hpp"\n#include <QString>\n')
        (root / "core/statements").mkdir()
        (root / "core/statements/Csv.hpp").write_text('#include "core/rates/Feed.hpp"\n')
        expected = [
            "core/ledger/Book.hpp:1: core/ledger includes core/files/Store.hpp of the layer core/files above it",
            "core/ledger/Book.hpp:2: the core includes the Qt header <QString>",
            "core/statements/Csv.hpp:1: core/statements includes core/rates/Feed.hpp of the layer core/rates above it",
        ]
        found = violations(root)
        if found != expected:
            print("self-test: expected\n  " + "\n  ".join(expected) + "\nfound\n  " + "\n  ".join(found))
            return 1
    print("self-test: upward and sideways includes and Qt in the core are caught")
    return 0


def main(arguments):
    if arguments[:1] == ["--self-test"]:
        return self_test()
    root = arguments[0] if arguments else pathlib.Path(__file__).resolve().parent.parent
    found = violations(root)
    for line in found:
        print(line)
    if found:
        print(f"{len(found)} include(s) reach a layer that is not below")
        return 1
    print("every include stays within its layer or the layers below")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
