# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs the examples of the package's docstrings and those of the guide:
examples_test.py PAGE..., with PYTHONPATH at the package. The pages' blocks of "python" are run one after the
other in a folder with a photo, photo.png, and an empty folder, results."""

import contextlib
import doctest
import importlib
import io
import os
import pathlib
import pkgutil
import re
import sys
import tempfile
import zlib

import numpy as np
import varnel


def png_file(array):
    """A PNG file of 8 bits and three colours."""

    def piece(name, body):
        return len(body).to_bytes(4, "big") + name + body + zlib.crc32(name + body).to_bytes(4, "big")

    height, width = array.shape[:2]
    header = width.to_bytes(4, "big") + height.to_bytes(4, "big") + bytes([8, 2, 0, 0, 0])
    rows = b"".join(b"\0" + row.tobytes() for row in array)
    return b"\x89PNG\r\n\x1a\n" + piece(b"IHDR", header) + piece(b"IDAT", zlib.compress(rows)) + piece(b"IEND", b"")


def disc():
    """A fisheye's picture: bright above, a dark rim."""
    y, x = np.mgrid[0:300, 0:400]
    inside = (x - 199.5) ** 2 + (y - 149.5) ** 2 < 130**2
    return np.where(inside[:, :, None], np.stack([60 + y // 3, 90 + x // 4, 230 - y // 2], axis=2), 2).astype(np.uint8)


@contextlib.contextmanager
def working_in(folder):
    before = os.getcwd()
    os.chdir(folder)
    try:
        yield
    finally:
        os.chdir(before)


def run_docstrings():
    failed = tried = 0
    for module in pkgutil.iter_modules(varnel.__path__, "varnel."):
        if module.name != "varnel._varnel":
            result = doctest.testmod(importlib.import_module(module.name))
            failed, tried = failed + result.failed, tried + result.attempted
    result = doctest.testmod(varnel)
    return failed + result.failed, tried + result.attempted


def run_page(page):
    """Blocks with >>> as docstrings, the others as programs that must not fail."""
    blocks = re.findall(r"^```python\n(.*?)^```", page.read_text(encoding="utf-8"), re.M | re.S)
    names, failed = {}, 0
    runner = doctest.DocTestRunner()
    with tempfile.TemporaryDirectory() as folder, working_in(folder):
        pathlib.Path("photo.png").write_bytes(png_file(disc()))
        os.mkdir("results")
        for n, block in enumerate(blocks):
            if ">>>" in block:
                test = doctest.DocTestParser().get_doctest(block, names, f"{page.name} {n}", str(page), 0)
                failed += runner.run(test, clear_globs=False).failed
                names.update(test.globs)
            else:
                with contextlib.redirect_stdout(io.StringIO()):
                    exec(compile(block, f"{page}, block {n}", "exec"), names)
    return failed, len(blocks)


def main(pages):
    bad = 0
    for name, (failed, tried) in [("docstrings", run_docstrings())] + [(p, run_page(pathlib.Path(p))) for p in pages]:
        print(f"{name}: {tried} examples, {failed} failed")
        bad += failed + (tried == 0)
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
