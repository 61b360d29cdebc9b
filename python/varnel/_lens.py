# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Lenses: from the catalogue, from files, from photos, measured."""

from __future__ import annotations

import os
from collections.abc import Sequence
from dataclasses import dataclass
from typing import TYPE_CHECKING, Any

from . import _varnel
from ._arrays import Picture, picture
from ._errors import ArgumentError

if TYPE_CHECKING:
    from numpy.typing import ArrayLike


@dataclass(frozen=True)
class Measurement:
    """What a lens was measured by."""

    edges_found: int
    edges_used: int
    before: float  #: bend of edges that were held out, by the lens known before: root mean square, pixels
    after: float  #: the same by the measured one
    angle_error: float  #: expected, degrees


class Lens:
    """A lens with the camera that it is on: which direction lands where on a picture.

    Made by :meth:`from_catalogue`, :meth:`from_file`, :meth:`from_curve`, :meth:`of_photo` and
    :func:`measure_lens`. Without a camera the sensor is taken to be 36 mm along the picture's longer side.

    >>> Lens.from_catalogue("Sigma/EX 8 mm f:3.5", camera="Canon/EOS 5D")
    <varnel.Lens "Canon EOS 5D + Sigma EX 8 mm f:3.5", 90 degrees>
    """

    __slots__ = ("_handle", "_measurement")
    _handle: _varnel.Lens
    _measurement: Measurement | None

    def __init__(self) -> None:
        raise TypeError("lenses are made by Lens.from_catalogue() and its like")

    @classmethod
    def _of(cls, handle: _varnel.Lens, measurement: Measurement | None = None) -> Lens:
        lens = cls.__new__(cls)
        lens._handle = handle
        lens._measurement = measurement
        return lens

    @classmethod
    def from_catalogue(cls, lens: str, camera: str | None = None) -> Lens:
        """A lens of the catalogue by its name "BRAND/MODEL"; see :func:`varnel.lenses` and
        :func:`varnel.cameras`. Raises NotFoundError.

        >>> Lens.from_catalogue("Sigma/EX 8 mm f:3.5").field
        90.0
        """
        return cls._of(_varnel.Lens.from_catalogue(lens, camera or ""))

    @classmethod
    def from_file(cls, path: str | os.PathLike[str], number: int = 0, camera: str | None = None) -> Lens:
        """The lens of that number, from 0 on, of a file: Varnel's own JSON, the XML of lens databases and
        profiles, calibrations as YAML or JSON. Raises ReadError."""
        if number < 0:
            raise ArgumentError(f"number: lenses count from 0, not {number}")
        return cls._of(_varnel.Lens.from_file(os.fspath(path), number, camera or ""))

    @classmethod
    def from_curve(cls, degrees: Sequence[float] | ArrayLike, radii: Sequence[float] | ArrayLike) -> Lens:
        """A lens by its curve: angles from the axis, rising from 0 up to 180 degrees, and the radii there,
        rising from 0, in any unit: the last one is the radius of the image circle, whose place on pictures
        :meth:`set_circle` or :meth:`find_circle` says.

        >>> Lens.from_curve([0, 30, 60, 90], [0, 1, 2, 3])
        <varnel.Lens "curve", 90 degrees>
        """
        return cls._of(_varnel.Lens.from_curve(_numbers(degrees), _numbers(radii)))

    @classmethod
    def of_photo(cls, path: str | os.PathLike[str]) -> Lens:
        """The camera and lens that took a photo, by its EXIF. Raises NotFoundError where it does not tell,
        ReadError where it cannot be read."""
        return cls._of(_varnel.Lens.of_photo(os.fspath(path)))

    @property
    def name(self) -> str:
        """Of camera and lens."""
        return str(self._handle.name())

    @property
    def field(self) -> float:
        """Degrees from the axis to the border of the image circle."""
        return float(self._handle.field())

    @property
    def measurement(self) -> Measurement | None:
        """How the lens was measured, of one by :func:`measure_lens`."""
        return self._measurement

    def set_circle(self, centre: tuple[float, float], radius: float, size: tuple[int, int]) -> None:
        """Puts the image circle of pictures of that size at the centre, a point, with that radius in pixels.
        It is at the limit of the lens's field. Pictures of another size of that shape have it in
        proportion."""
        self._handle.set_circle((float(centre[0]), float(centre[1])), float(radius), (int(size[0]), int(size[1])))

    def find_circle(self, photo: ArrayLike, order: str = "RGB") -> None:
        """Finds the circle on a photo and puts it there. Raises NotFoundError where the photo has no rim."""
        self._handle.find_circle(picture(photo, order, "photo").image)

    def write(self, path: str | os.PathLike[str]) -> None:
        """Writes a lens that is a curve: .json exactly, .yaml and .xml for other programs. An older file is
        replaced as a whole. Raises WriteError, or ArgumentError for lenses of the catalogue."""
        self._handle.write(os.fspath(path))

    def __copy__(self) -> Lens:
        return Lens._of(_varnel.Lens(self._handle), self._measurement)

    def __deepcopy__(self, memo: dict[int, Any]) -> Lens:
        return self.__copy__()

    def copy(self) -> Lens:
        """A lens of its own with the same curve and circle."""
        return self.__copy__()

    def __repr__(self) -> str:
        return f'<varnel.Lens "{self.name}", {self.field:.6g} degrees>'


def measure_lens(photos: Sequence[ArrayLike], known: Lens | None = None, order: str = "RGB") -> Lens:
    """A lens measured from the straight edges on one to four photos of one size, held alike. Uses 8 bits of
    them. ``known`` is the lens that is to be beaten. Its ``measurement`` says how good it is. Raises
    NotMeasuredError where there are too few edges, or where they tell of no better lens."""
    if not photos:
        raise ArgumentError("photos: there are none")
    pictures: list[Picture] = [picture(photo, order, "photos") for photo in photos]
    handle, found, used, before, after, angle = _varnel.measure(
        [p.image for p in pictures], None if known is None else handle_of(known)
    )
    return Lens._of(handle, Measurement(found, used, before, after, angle))


def handle_of(lens: Lens) -> _varnel.Lens:
    """What the library knows a lens by."""
    if not isinstance(lens, Lens):
        raise TypeError(f"lens: a varnel.Lens is needed, not {type(lens).__name__}")
    return lens._handle


def _numbers(values: Sequence[float] | ArrayLike) -> list[float]:
    return [float(value) for value in values]  # type: ignore[union-attr, arg-type]
