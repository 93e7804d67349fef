#!/usr/bin/env python3
"""The floors of src/: a file includes its own floor and lower ones, the toolkit stays in three places, and no two
modules and no two rooms include each other. A header and its source count as one module, a folder is a room.
The first argument is the source root."""
import re
import sys
import unittest
from pathlib import Path

FLOORS = ["host", "sci", "engine", "editor", "documents", "toolchain", "workbench", "app"]
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.M)
TOOLKIT = re.compile(r"(^|/)(Q[A-Za-z0-9]+|q[a-z0-9_]+\.h|Qsci/.*)$|^Qt[A-Za-z0-9]*/")


def module_of(path):
    return path.rsplit(".", 1)[0]


def room_of(path):
    return path.rsplit("/", 1)[0]


def height(path):
    floor = path.split("/")[0]
    return FLOORS.index(floor) if floor in FLOORS else -1


def includes(tree, path):
    """Each include with the file of the tree that it means, empty for one from outside."""
    for mark, name in INCLUDE.findall(tree[path]):
        beside = path.rsplit("/", 1)[0] + "/" + name
        target = "" if mark == "<" else name if name in tree else beside if beside in tree else ""
        yield mark, name, target


def floor_faults(tree):
    faults = []
    for path in tree:
        toolkit_allowed = path.startswith(("host/qt/", "workbench/", "app/"))
        for mark, name, target in includes(tree, path):
            fault = f"{path} includes {name}"
            if not target:
                if mark == '"' and not name.startswith("moc_"):
                    faults.append(fault + ", which is not in src/")
                if mark == "<" and TOOLKIT.search(name) and not toolkit_allowed:
                    faults.append(fault)
                continue
            # The platform's implementation stands on the two lowest floors, and on itself.
            own = height("sci/") if path.startswith("host/qt/") else height(path)
            if not 0 <= height(target) <= own:
                faults.append(fault)
            if target.startswith("host/qt/") and not path.startswith(("host/qt/", "app/")):
                faults.append(fault)
    return faults


def circles(tree, unit_of):
    """The groups of units that include each other, each as its names in order."""
    graph = {}
    for path in tree:
        for _, _, target in includes(tree, path):
            if target and unit_of(target) != unit_of(path):
                graph.setdefault(unit_of(path), set()).add(unit_of(target))

    def reached(unit):
        seen, waiting = set(), [unit]
        while waiting:
            for following in graph.get(waiting.pop(), ()):
                if following not in seen:
                    seen.add(following)
                    waiting.append(following)
        return seen

    reach = {unit: reached(unit) for unit in graph}
    return {" ".join(sorted(other for other in others if unit in reach.get(other, ())))
            for unit, others in reach.items() if unit in others}


def read_tree(root):
    files = [path for ending in ("*.h", "*.cpp", "*.def") for path in root.rglob(ending)]
    return {path.relative_to(root).as_posix(): path.read_text(errors="replace") for path in files}


class SourceTree(unittest.TestCase):
    tree = {}

    def test_every_file_stands_on_a_floor(self):
        self.assertGreater(len(self.tree), 100)
        self.assertEqual([path for path in self.tree if height(path) < 0], [])

    def test_no_file_includes_a_higher_floor_or_the_toolkit_out_of_its_place(self):
        self.assertEqual(floor_faults(self.tree), [])

    def test_no_modules_and_no_rooms_include_each_other(self):
        self.assertEqual(circles(self.tree, module_of), set())
        self.assertEqual(circles(self.tree, room_of), set())

    def test_no_room_holds_a_fifth_of_the_lines(self):
        lines = {}
        for path, text in self.tree.items():
            lines[room_of(path)] = lines.get(room_of(path), 0) + text.count("\n")
        self.assertEqual([room for room in lines if lines[room] * 5 > sum(lines.values())], [])


class TheChecks(unittest.TestCase):
    """They find what they are there for."""

    CLEAN = {"host/Files.h": "#include <string>\n",
             "host/qt/system/QtFiles.h": '#include "host/Files.h"\n#include <QFile>\n',
             "engine/Lexer.h": "",
             "engine/Lexer.cpp": '#include "engine/Lexer.h"\n#include "host/Files.h"\n',
             "app/main.cpp": '#include "host/qt/system/QtFiles.h"\n#include <QtWidgets/QLabel>\n'}

    def test_faults_are_found(self):
        self.assertEqual(floor_faults(self.CLEAN), [])
        for path, line in [("host/Files.h", '  #  include "engine/Lexer.h"'),
                           ("host/qt/system/QtFiles.h", '#include "engine/Lexer.h"'),
                           ("engine/Lexer.cpp", '#include "host/qt/system/QtFiles.h"'),
                           ("engine/Lexer.cpp", '#include "../tools/x.h"'),
                           ("engine/Lexer.h", "#include <QString>"),
                           ("engine/Lexer.h", "#include <QtCore/QString>"),
                           ("engine/Lexer.h", "#include <qglobal.h>"),
                           ("engine/Lexer.h", "#include <Qsci/qsciscintillabase.h>")]:
            tree = dict(self.CLEAN)
            tree[path] += line + "\n"
            self.assertEqual(len(floor_faults(tree)), 1, line)

    def test_circles_are_found(self):
        tree = {"a/One.h": '#include "a/Two.h"\n', "a/Two.h": '#include "a/Three.h"\n', "a/Three.h": "",
                "a/Three.cpp": '#include "a/Three.h"\n', "a/Root.h": '#include "a/One.h"\n'}
        self.assertEqual(circles(tree, module_of), set())
        tree["a/Three.cpp"] += '#include "a/One.h"\n'  # the headers alone have no circle
        tree["b/X.h"] = '#include "b/Y.h"\n'
        tree["b/Y.cpp"] = '#include "b/X.h"\n#include "a/One.h"\n'
        tree["b/Y.h"] = ""
        self.assertEqual(circles(tree, module_of), {"a/One a/Three a/Two", "b/X b/Y"})

    def test_an_arrow_back_between_rooms_is_found(self):
        tree = {"a/x/One.h": '#include "a/y/Two.h"\n', "a/y/Two.h": "", "a/x/Other.h": ""}
        self.assertEqual(circles(tree, room_of), set())
        tree["a/y/Back.h"] = '#include "a/x/Other.h"\n'
        self.assertEqual(circles(tree, module_of), set())
        self.assertEqual(circles(tree, room_of), {"a/x a/y"})


if __name__ == "__main__":
    SourceTree.tree = read_tree(Path(sys.argv.pop(1)) / "src")
    unittest.main()
