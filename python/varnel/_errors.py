# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The exceptions of the package."""

from __future__ import annotations

from typing import Any


class Error(Exception):
    """What went wrong, with a text for people.

    ``results`` holds what :func:`varnel.convert` told of files until then; of other functions it is
    empty.
    """

    def __init__(self, text: str) -> None:
        super().__init__(text)
        self.results: list[dict[str, Any]] = []


class ArgumentError(Error, ValueError):
    """An array, a number or a text that a function does not take."""


class NotFoundError(Error, LookupError):
    """No such lens or camera, a photo that does not tell its own, or one without a rim."""


class ReadError(Error, OSError):
    """A file that cannot be read, or is no lens or photo."""


class WriteError(Error, OSError):
    """Files that could not be written."""


class ImpossibleError(Error, ArithmeticError):
    """The numbers of lens and view make no picture."""


class NotMeasuredError(Error):
    """Too few straight edges, or none that tell of a better lens than the known one."""


class StoppedError(Error):
    """The report asked for it."""


class InternalError(Error, RuntimeError):
    """A fault of the library's."""


# By the statuses of the library.
_CLASSES: dict[int, type[Error]] = {
    1: ArgumentError,
    2: NotFoundError,
    3: ReadError,
    4: WriteError,
    5: ImpossibleError,
    6: NotMeasuredError,
    7: StoppedError,
}
_NO_MEMORY = 8


def error_for(status: int, text: str) -> Exception:
    """The exception for a status of the library."""
    if status == _NO_MEMORY:
        return MemoryError(text)
    return _CLASSES.get(status, InternalError)(text)
