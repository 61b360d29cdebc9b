# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Points of photos and results, and directions, one into the other."""

from __future__ import annotations

from collections.abc import Mapping
from typing import TYPE_CHECKING, Any, Callable

import numpy as np

from . import _varnel
from ._errors import ArgumentError
from ._lens import Lens, handle_of
from ._remap import view_of

if TYPE_CHECKING:
    from numpy.typing import ArrayLike, NDArray


def directions(lens: Lens, points: ArrayLike, size: tuple[int, int]) -> NDArray[np.float64]:
    """The directions that points of a photo of that size show.

    points: (n, 2), or any shape (..., 2). Returns (n, 3), or (..., 3); NaN for points that are NaN. Points
    beyond the image circle have directions, too, on the continuation of the lens's curve.

    >>> lens = Lens.from_catalogue("Sigma/EX 8 mm f:3.5")
    >>> directions(lens, [[299.5, 199.5]], (600, 400)).round(6) + 0.0
    array([[0., 0., 1.]])
    """
    return _mapped(points, 2, lambda flat: _varnel.directions(handle_of(lens), flat, _whole(size)))


def points(lens: Lens, directions: ArrayLike, size: tuple[int, int]) -> NDArray[np.float64]:
    """Where on a photo of that size directions land.

    directions: (n, 3), or any shape (..., 3), of any length but 0. Returns (n, 2), or (..., 2); also beside
    the photo, and beyond the field on the curve's continuation; NaN for a direction that is none.

    >>> lens = Lens.from_catalogue("Sigma/EX 8 mm f:3.5")
    >>> points(lens, [[0, 0, 2], [0, 0, 0]], (600, 400)).round(6)
    array([[299.5, 199.5],
           [  nan,   nan]])
    """
    return _mapped(directions, 3, lambda flat: _varnel.points(handle_of(lens), flat, _whole(size)))


def result_to_source(
    lens: Lens,
    points: ArrayLike,
    size: tuple[int, int],
    projection: str = "rectilinear",
    result: tuple[int, int] | None = None,
    rotate: tuple[float, float, float] = (0.0, 0.0, 0.0),
    angle: float | None = None,
    settings: Mapping[str, object] | None = None,
) -> NDArray[np.float64]:
    """Where on a photo of that size points of the result are read.

    points: (n, 2), or any shape (..., 2). result: (width, height) of the result; the rest as for
    :func:`varnel.remap`. Returns the shape of the points; NaN for a point that is nowhere.

    >>> lens = Lens.from_catalogue("Sigma/EX 8 mm f:3.5")
    >>> result_to_source(lens, [[299.5, 199.5], [np.nan, 0]], (600, 400)).round(1)
    array([[299.5, 199.5],
           [  nan,   nan]])
    """
    view = view_of(projection, result, rotate, angle, settings)
    return _mapped(points, 2, lambda flat: _varnel.result_to_source(handle_of(lens), view, flat, _whole(size)))


def source_to_result(
    lens: Lens,
    points: ArrayLike,
    size: tuple[int, int],
    projection: str = "rectilinear",
    result: tuple[int, int] | None = None,
    rotate: tuple[float, float, float] = (0.0, 0.0, 0.0),
    angle: float | None = None,
    settings: Mapping[str, object] | None = None,
) -> NDArray[np.float64]:
    """Where on the result points of a photo of that size are drawn; one that is drawn more than once, at one
    of these. Otherwise as :func:`result_to_source`."""
    view = view_of(projection, result, rotate, angle, settings)
    return _mapped(points, 2, lambda flat: _varnel.source_to_result(handle_of(lens), view, flat, _whole(size)))


def _whole(size: tuple[int, int]) -> tuple[int, int]:
    width, height = size
    return int(width), int(height)


def _mapped(
    values: ArrayLike, width: int, function: Callable[[NDArray[np.float64]], Any]
) -> NDArray[np.float64]:
    own = np.asarray(values, np.float64)
    if own.ndim < 1 or own.shape[-1] != width:
        raise ArgumentError(f"points: their shape is {own.shape}, not (n, {width})")
    mapped: NDArray[np.float64] = function(own.reshape(-1, width))
    return mapped.reshape(own.shape[:-1] + mapped.shape[1:])
