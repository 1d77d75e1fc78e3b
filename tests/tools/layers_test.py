#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Tests that tools/check-layers reports every kind of violation and nothing else."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECKER = pathlib.Path(__file__).resolve().parents[2] / "tools/check-layers"
TABLE = """
| Room | What | May use |
|---|---|---|
| `base` | all | |
| `contacts` | store | {contacts} |
| `app` | main | `contacts` |
"""


# Uses every arrow of the table.
SOURCES = {
    "src/base/a.h": "",
    "src/contacts/b.h": '#include "base/a.h"\n',
    "src/app/main.cpp": '#include "contacts/b.h"\n#include <vector>\n',
    "src/contacts/CMakeLists.txt": "parlexo_library(contacts\n SOURCES b.h\n LINKS Qt6::Core base)\n",
}


class Layers(unittest.TestCase):
    def check(self, files, contacts="`base`"):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            table = {"docs/architecture.md": TABLE.format(contacts=contacts)}
            for name, content in {**table, **SOURCES, **files}.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(content, encoding="utf-8")
            run = subprocess.run([CHECKER, folder], capture_output=True, text=True, check=False)
            return run.returncode, run.stderr

    def assert_problem(self, words, files, **table):
        code, problems = self.check(files, **table)
        self.assertEqual(code, 1)
        self.assertIn(words, problems)

    def test_allowed_and_used_arrows_pass(self):
        self.assertEqual(self.check({}), (0, ""))

    def test_violations_are_reported(self):
        self.assert_problem("src/base/a.h (base) includes contacts/b.h",
                            {"src/base/a.h": '#include "contacts/b.h"\n'})
        self.assert_problem("not a path from src", {"src/base/c.h": '#include "b.h"\n'})
        self.assert_problem("is in no room", {"src/attic/a.h": ""})
        self.assert_problem("base links contacts",
                            {"src/base/CMakeLists.txt": "parlexo_library(base SOURCES a.h LINKS contacts)"})
        self.assert_problem("headers include each other: base/a.h -> base/b.h -> base/a.h",
                            {"src/base/a.h": '#include "base/b.h"\n', "src/base/b.h": '#include "base/a.h"\n'})
        self.assert_problem("the rooms form a cycle: app -> contacts -> app", {}, contacts="`base` `app`")

    def test_arrow_that_no_file_uses_is_reported(self):
        code, problems = self.check({"src/contacts/b.h": '#include <vector>\n'})
        self.assertEqual(code, 1)
        self.assertEqual(problems, "docs/architecture.md: contacts may use base, but nothing there includes it\n")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
