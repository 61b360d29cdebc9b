# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures into other projections."""

from __future__ import annotations

from collections.abc import Mapping
from typing import TYPE_CHECKING, Any

import numpy as np

from . import _varnel
from ._arrays import canvas, picture
from ._errors import ArgumentError
from ._lens import Lens, handle_of

if TYPE_CHECKING:
    from numpy.typing import ArrayLike, NDArray

# Their results show what the photo and the strength of the projection say.
_WITHOUT_ANGLE = ("varnel", "equidistance", "horizon")

# How many pixels of two arrays NumPy may compare to tell whether they overlap.
_MOST_WORK = 1_000_000


def view_of(
    projection: str = "rectilinear",
    size: tuple[int, int] | None = None,
    rotate: tuple[float, float, float] = (0.0, 0.0, 0.0),
    angle: float | None = None,
    settings: Mapping[str, object] | None = None,
) -> _varnel.View:
    """The library's view of the arguments that functions here have in common."""
    view = _varnel.View()
    view.set("Projection", projection)
    if size is not None:
        width, height = size
        view.set("OutputWidth", str(int(width)))
        view.set("OutputHeight", str(int(height)))
    if len(rotate) != 3:
        raise ArgumentError(f"rotate: three angles are needed, not {len(rotate)}")
    for axis, degrees in zip("XYZ", rotate):
        if degrees != 0:
            view.set(f"Rotate{axis}", repr(float(degrees)))
    if angle is not None:
        if projection.lower() in _WITHOUT_ANGLE:
            raise ArgumentError(f"angle: the projection {projection} has none")
        view.set("OutputAOV", repr(float(angle)))
    for name, value in (settings or {}).items():
        view.set(name, str(value))
    return view


def remap(
    photo: ArrayLike,
    lens: Lens,
    projection: str = "rectilinear",
    size: tuple[int, int] | None = None,
    rotate: tuple[float, float, float] = (0.0, 0.0, 0.0),
    angle: float | None = None,
    order: str = "RGB",
    settings: Mapping[str, object] | None = None,
    out: NDArray[Any] | None = None,
    threads: int = 0,
) -> NDArray[Any]:
    """Draws a photo in another projection.

    photo: (height, width) or (height, width, 1 to 4) of uint8, uint16 or float32. Three and four channels
        are read where they lie, with any distance between rows, also upside down (``photo[::-1]``), and one
        and two go through a copy of the library's; an array whose pixels do not lie side by side in a row is
        copied by NumPy first.
    projection: one of :func:`varnel.projections`.
    size: (width, height) of the result in pixels; as the photo if it is left out, or as ``out``.
    rotate: degrees about x (positive looks down), y (right) and z (counter-clockwise).
    angle: degrees across the result; not of varnel, equidistance and horizon.
    order: of the colours, "RGB" or "BGR"; counts where the colours of the lens part, and for a colour outside.
    settings: others, by the names of :func:`varnel.settings`: {"Sampling": "fine", "TranslateX": 10}.
    out: the array that is written to, where it lies, and returned. It must not share memory with the photo.
    threads: how many are at work; 0: one for each core, 1: the caller's alone.

    Returns an array of the photo's samples and channels. What shows nothing is black, or as the setting
    "Outside" says. Raises ArgumentError, or ImpossibleError where the numbers make no picture.

    >>> lens = Lens.from_catalogue("Sigma/EX 8 mm f:3.5")
    >>> photo = np.zeros((200, 300), np.float32)
    >>> photo[99:101, 149:151] = 1
    >>> result = remap(photo, lens, "stereographic", size=(201, 101), angle=60)
    >>> result.dtype, result.shape, bool(result[50, 100] > 0.9)
    (dtype('float32'), (101, 201), True)
    """
    if threads < 0:
        raise ArgumentError(f"threads: there are 0 and more, not {threads}")
    source = picture(photo, order, "photo")
    target = None if out is None else canvas(out, order, "out")
    if size is None and target is not None:
        size = target.size
    view = view_of(projection, size, rotate, angle, settings)
    width, height = view.size_for(source.size)
    shape = (height, width) + source.array.shape[2:]
    if target is None:
        target = canvas(np.empty(shape, source.array.dtype), order, "out")
    elif target.array.shape != shape:
        raise ArgumentError(f"out: its shape is {target.array.shape}, and {shape} is needed")
    elif target.array.dtype != source.array.dtype:
        raise ArgumentError(f"out: its samples are {target.array.dtype}, those of the photo {source.array.dtype}")
    elif _overlap(source.array, target.array):
        raise ArgumentError("out: it shares memory with the photo")
    _varnel.remap(handle_of(lens), view, source.image, target.image, threads)
    return target.array


def result_size(
    size: tuple[int, int],
    projection: str = "rectilinear",
    result: tuple[int, int] | None = None,
    settings: Mapping[str, object] | None = None,
) -> tuple[int, int]:
    """(width, height) of what is made of a photo of that size.

    >>> result_size((600, 400))
    (600, 400)
    """
    width, height = view_of(projection, result, settings=settings).size_for((int(size[0]), int(size[1])))
    return width, height


def _overlap(a: NDArray[Any], b: NDArray[Any]) -> bool:
    if not np.may_share_memory(a, b):
        return False
    try:
        return bool(np.shares_memory(a, b, max_work=_MOST_WORK))
    except np.TooHardError:
        return True
