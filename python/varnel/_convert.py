# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Files into files."""

from __future__ import annotations

import json
import os
from collections.abc import Callable, Iterable
from typing import Any, Union

from . import _varnel
from ._errors import Error

_Path = Union[str, "os.PathLike[str]"]


def convert(
    paths: _Path | Iterable[_Path],
    projection: str | Iterable[str] | None = None,
    output_dir: _Path | None = None,
    gear: str | None = "auto",
    preset: str | None = None,
    options: Iterable[str] = (),
    report: Callable[[dict[str, Any]], object] | None = None,
    user_settings: bool = False,
) -> list[dict[str, Any]]:
    """Converts photos and films as varnel-convert(1) does, metadata and colours included.

    paths: a file or several.
    projection: one or several of :func:`varnel.projections`.
    output_dir: the folder where results go, which is there already; beside the photos if it is left out.
    gear: camera and lens: "auto" by the EXIF, "guess", the name of a gear of the user's, None: as the options
        say.
    preset: the name of a preset.
    options: others, written in full: ["--type", "png", "--rotate-x", "20"].
    report: called with each result as it comes, on this thread. Returning False ends the run (StoppedError),
        raising something does so, too. Ctrl-C ends it after the result that is under way.
    user_settings: whether the user's defaults, gears and presets count.

    Returns a dictionary for each result, written, skipped or failed, as ``varnel-convert --json`` prints them:
    "file", "result", "status" ... Raises WriteError where a file failed, after all the others, with a line
    for each complaint; ArgumentError for options that mean nothing. Their ``results`` have what was done.
    """
    words = []
    for option, value in (("--gear", gear), ("--preset", preset), ("--output-dir", output_dir)):
        if value is not None:
            words += [option, os.fspath(value)]
    if projection is not None:
        words += ["--projection", projection if isinstance(projection, str) else ",".join(projection)]
    words += [str(option) for option in options]
    files = [paths] if isinstance(paths, (str, os.PathLike)) else list(paths)
    words += ["--", *(os.fspath(path) for path in files)]

    results: list[dict[str, Any]] = []

    def take(line: str) -> bool:
        results.append(json.loads(line))
        return report is None or report(results[-1]) is not False

    try:
        _varnel.convert(words, take, user_settings)
    except Error as error:
        error.results = results
        raise
    return results
