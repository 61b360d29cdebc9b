# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Arrays as pictures."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, NamedTuple

import numpy as np

from . import _varnel
from ._errors import ArgumentError

if TYPE_CHECKING:
    from numpy.typing import ArrayLike, NDArray

_SAMPLES = (np.uint8, np.uint16, np.float32)


class Picture(NamedTuple):
    """An array with what the library knows it by. The array is the caller's own where it can be used as it
    lies."""

    array: NDArray[Any]
    image: _varnel.Image

    @property
    def size(self) -> tuple[int, int]:
        return self.array.shape[1], self.array.shape[0]


def check(array: NDArray[Any], name: str) -> None:
    """Raises ArgumentError where the array is no picture."""
    if array.dtype not in _SAMPLES:
        raise ArgumentError(f"{name}: its samples are {array.dtype}, and uint8, uint16 and float32 can be used")
    if array.ndim not in (2, 3) or (array.ndim == 3 and not 1 <= array.shape[2] <= 4):
        raise ArgumentError(
            f"{name}: its shape is {array.shape}, not (height, width) or (height, width, 1 to 4 channels)"
        )
    if array.size == 0:
        raise ArgumentError(f"{name}: it has no pixels")


def picture(array: ArrayLike, order: str, name: str) -> Picture:
    """A picture to be read from. Rows may lie anyhow, also upside down; where the pixels of a row do not lie
    side by side, or the bytes of a sample are in the other order, it is a copy."""
    own = np.asarray(array)
    if not own.dtype.isnative:
        own = own.astype(own.dtype.newbyteorder("="))
    check(own, name)
    if not _varnel.lies_in_place(own):
        own = np.ascontiguousarray(own)
    return Picture(own, _varnel.Image(own, order, name))


def canvas(array: NDArray[Any], order: str, name: str) -> Picture:
    """A picture to be written to where it lies, hence never a copy."""
    if not isinstance(array, np.ndarray):
        raise ArgumentError(f"{name}: it is no array")
    if not array.dtype.isnative:
        raise ArgumentError(f"{name}: the bytes of its samples are in the other machine's order")
    check(array, name)
    if not _varnel.lies_in_place(array):
        raise ArgumentError(f"{name}: the pixels of its rows do not lie side by side")
    return Picture(array, _varnel.Image(array, order, name))
