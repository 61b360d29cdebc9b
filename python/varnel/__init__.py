# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fisheye pictures into other projections, on NumPy arrays.

Pictures are arrays of the shape (height, width) or (height, width, channels) with 1 to 4 channels: grey,
grey and alpha, colours, colours and alpha; of uint8, uint16 or float32 (black 0, white 1). Row 0 is the
top row. Sizes are (width, height) in pixels. Points are (x, y) in pixels, x to the right and y down, whole
numbers in the middles of pixels: (0, 0) is the middle of the top left one. Directions are (x, y, z), x to
the right, y up and z along the optical axis of the camera that took the photo, of length 1. Angles are in
degrees.

>>> import numpy as np
>>> import varnel
>>> lens = varnel.Lens.from_catalogue("Sigma/EX 8 mm f:3.5")
>>> photo = np.full((400, 600, 3), 128, np.uint8)
>>> varnel.remap(photo, lens, size=(300, 200), angle=100).shape
(200, 300, 3)

The work releases the interpreter's lock. Its threads are kept between calls, one pool for each number of
threads, shared by all of Python's; a process that was forked makes its own.
"""

from __future__ import annotations

from . import _varnel
from ._convert import convert
from ._errors import (
    ArgumentError,
    Error,
    ImpossibleError,
    InternalError,
    NotFoundError,
    NotMeasuredError,
    ReadError,
    StoppedError,
    WriteError,
)
from ._lens import Lens, Measurement, measure_lens
from ._points import directions, points, result_to_source, source_to_result
from ._remap import remap, result_size

__version__: str = _varnel.version()
version: str = __version__


def cameras() -> list[str]:
    """The cameras of the catalogue, "BRAND/MODEL" each.

    >>> "Canon/EOS 5D" in cameras()
    True
    """
    return list(_varnel.cameras())


def lenses(path: str | None = None) -> list[str]:
    """The lenses of the catalogue, "BRAND/MODEL" each; or the names of those of a file.

    >>> "Sigma/EX 8 mm f:3.5" in lenses()
    True
    """
    return list(_varnel.lenses() if path is None else _varnel.lenses_of_file(str(path)))


def projections() -> list[str]:
    """The projections, as :func:`remap` takes them.

    >>> projections()[:4]
    ['varnel', 'rectilinear', 'equidistance', 'horizon']
    """
    return list(_varnel.projections())


def settings() -> list[str]:
    """The names of the settings of a view, as varnel-convert(1) has them for ``--set``.

    >>> {"RotateX", "OutputWidth", "Sampling"} <= set(settings())
    True
    """
    return list(_varnel.settings())


# In tracebacks they stand where they are caught.
for _error in (
    Error,
    ArgumentError,
    NotFoundError,
    ReadError,
    WriteError,
    ImpossibleError,
    NotMeasuredError,
    StoppedError,
    InternalError,
):
    _error.__module__ = "varnel"
del _error

__all__ = [
    "ArgumentError",
    "Error",
    "ImpossibleError",
    "InternalError",
    "Lens",
    "Measurement",
    "NotFoundError",
    "NotMeasuredError",
    "ReadError",
    "StoppedError",
    "WriteError",
    "cameras",
    "convert",
    "directions",
    "lenses",
    "measure_lens",
    "points",
    "projections",
    "remap",
    "result_size",
    "result_to_source",
    "settings",
    "source_to_result",
    "version",
]
