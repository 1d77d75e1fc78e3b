#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-layers must find every kind of breach; a check that finds nothing would be worth nothing."""

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
| `contacts` | store | `base` |
| `simulator` | server | {simulator} |
| `app` | main | `simulator` `contacts` `base` |
"""


class Layers(unittest.TestCase):
    def check(self, files, simulator="`base`"):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, content in {"docs/architecture.md": TABLE.format(simulator=simulator), **files}.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(content, encoding="utf-8")
            run = subprocess.run([CHECKER, folder], capture_output=True, text=True, check=False)
            return run.returncode, run.stderr

    def assert_breach(self, words, files, **table):
        code, problems = self.check(files, **table)
        self.assertEqual(code, 1)
        self.assertIn(words, problems)

    def test_drawn_arrows_pass(self):
        code, problems = self.check({
            "src/base/a.h": "",
            "src/contacts/b.h": '#include "base/a.h"\n',
            "src/app/main.cpp": '#include "contacts/b.h"\n#include <vector>\n',
            "src/contacts/CMakeLists.txt": "parlexo_library(contacts\n SOURCES b.h\n LINKS Qt6::Core base)\n",
        })
        self.assertEqual((code, problems), (0, ""))

    def test_breaches_are_found(self):
        self.assert_breach("src/base/a.h (base) includes contacts/b.h",
                           {"src/base/a.h": '#include "contacts/b.h"\n', "src/contacts/b.h": ""})
        self.assert_breach("not written from src", {"src/base/a.h": '#include "b.h"\n', "src/base/b.h": ""})
        self.assert_breach("lies in no room", {"src/attic/a.h": ""})
        self.assert_breach("base links contacts",
                           {"src/base/CMakeLists.txt": "parlexo_library(base SOURCES a.h LINKS contacts)"})
        self.assert_breach("include each other",
                           {"src/base/a.h": '#include "base/b.h"\n', "src/base/b.h": '#include "base/a.h"\n'})
        self.assert_breach("the rooms form a circle", {}, simulator="`simulator`")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
