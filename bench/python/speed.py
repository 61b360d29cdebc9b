#!/usr/bin/python3
# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The package beside the library that it calls, and beside OpenCV's fisheye model (Debian: python3-opencv):
speed.py [--runs N] [--size WxH] with PYTHONPATH at the package, as build/bench/python, in turns in one process.

The job: an equidistant fisheye of 180 degrees as a straight view of 100 degrees across, turned by other angles
each time, so nobody can keep a map. All write into arrays that are there already. The first column is
processor time, the second the clock; both are medians, and ratios those of pairs that ran after each other.
"""

import argparse
import ctypes
import pathlib
import resource
import statistics
import time

import numpy as np
import varnel

try:
    import cv2
except ImportError:
    cv2 = None

ACROSS = 100.0


class Image(ctypes.Structure):
    """varnel_image of varnel.h."""

    _fields_ = [
        ("pixels", ctypes.c_void_p),
        ("width", ctypes.c_int32),
        ("height", ctypes.c_int32),
        ("row_bytes", ctypes.c_ssize_t),
        ("channels", ctypes.c_int32),
        ("sample", ctypes.c_int),
        ("order", ctypes.c_int),
    ]

    @classmethod
    def of(cls, array):
        height, width, channels = array.shape
        return cls(array.ctypes.data, width, height, array.strides[0], channels, 0, 0)


class Library:
    """The interface in C without the package."""

    def __init__(self, field, circle, size, threads):
        # The one that the package has loaded.
        maps = pathlib.Path("/proc/self/maps").read_text()
        self.c = ctypes.CDLL(next(line.split()[-1] for line in maps.splitlines() if "/libvarnel.so" in line))
        self.lens, self.pool = ctypes.c_void_p(), ctypes.c_void_p()
        degrees, radii = (ctypes.c_double * 2)(0, field), (ctypes.c_double * 2)(0, 1)
        self.check(self.c.varnel_lens_from_curve(degrees, radii, 2, ctypes.byref(self.lens), None))
        numbers = [ctypes.c_double(number) for number in circle]
        self.check(self.c.varnel_lens_set_circle(self.lens, *numbers, *size, None))
        if threads != 1:
            self.check(self.c.varnel_pool_new(threads, ctypes.byref(self.pool), None))

    @staticmethod
    def check(status):
        if status != 0:
            raise RuntimeError(f"status {status}")

    def remap(self, photo, tilt, out):
        view = ctypes.c_void_p()
        self.check(self.c.varnel_view_new(ctypes.byref(view), None))
        for name, value in (
            ("Projection", "rectilinear"),
            ("OutputWidth", out.shape[1]),
            ("OutputHeight", out.shape[0]),
            ("RotateX", tilt),
            ("OutputAOV", ACROSS),
        ):
            self.check(self.c.varnel_view_set(view, name.encode(), str(value).encode(), None))
        images = ctypes.byref(Image.of(photo)), ctypes.byref(Image.of(out))
        self.check(self.c.varnel_remap(self.lens, view, *images, self.pool, None))
        self.c.varnel_view_free(view)


class OpenCv:
    def __init__(self, circle, kind, size):
        x, y, radius = circle
        self.camera = np.array([[radius / (np.pi / 2), 0, x], [0, radius / (np.pi / 2), y], [0, 0, 1]])
        self.kind = kind
        focal = size[0] / 2 / np.tan(np.radians(ACROSS / 2))
        self.view = np.array([[focal, 0, (size[0] - 1) / 2], [0, focal, (size[1] - 1) / 2], [0, 0, 1]])

    def remap(self, photo, tilt, out):
        turn = cv2.Rodrigues(np.array([np.radians(tilt), 0.0, 0.0]))[0]
        maps = cv2.fisheye.initUndistortRectifyMap(
            self.camera, np.zeros(4), turn, self.view, (out.shape[1], out.shape[0]), self.kind
        )
        cv2.remap(photo, *maps, cv2.INTER_LINEAR, dst=out)


def measured(job, photo, tilt, out):
    since, before = time.perf_counter(), resource.getrusage(resource.RUSAGE_SELF)
    job(photo, tilt, out)
    took, after = time.perf_counter() - since, resource.getrusage(resource.RUSAGE_SELF)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, took


def compare(jobs, photo, out, runs):
    """Times of all jobs, in turns that begin with another one each time, after one that is not counted."""
    times = {name: [] for name in jobs}
    names = list(jobs)
    for run in range(-1, runs):
        tilt = 5.0 + 40.0 * (run + 1) / (runs + 1)
        first = run % len(names)
        for name in names[first:] + names[:first]:
            took = measured(jobs[name], photo, tilt, out)
            if run >= 0:
                times[name].append(took)
    return times


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--runs", type=int, default=9)
    parser.add_argument("--size", default="6000x4000")
    asked = parser.parse_args()
    width, height = (int(side) for side in asked.size.split("x"))
    size, circle = (width, height), ((width - 1) / 2, (height - 1) / 2, height / 2)
    y, x = np.mgrid[0:height, 0:width].astype(np.float32)
    photo = np.stack([128 + 100 * np.sin(x / (9 + c) + y / 31) for c in range(3)], axis=2).astype(np.uint8)
    out = np.empty_like(photo)
    lens = varnel.Lens.from_curve([0, 90], [0, 1])
    lens.set_circle(circle[:2], circle[2], size)
    for threads in (1, 0):
        library = Library(90, circle, size, threads)
        jobs = {
            "package": lambda p, t, o: varnel.remap(p, lens, rotate=(t, 0, 0), angle=ACROSS, out=o, threads=threads),
            "library": library.remap,
        }
        if cv2 is not None:
            cv2.setNumThreads(threads if threads else -1)
            jobs["OpenCV, whole numbers"] = OpenCv(circle, cv2.CV_16SC2, size).remap
            jobs["OpenCV, single precision"] = OpenCv(circle, cv2.CV_32FC1, size).remap
        pictures = {}
        for name, job in jobs.items():
            job(photo, 20.0, out)
            pictures[name] = out[::7, ::7].astype(np.int32)
        print(f"{asked.size}, {'one thread' if threads == 1 else 'all threads'}: processor time and clock, ms")
        times = compare(jobs, photo, out, asked.runs)
        for name, took in times.items():
            ratios = [
                statistics.median(one[n] / other[n] for one, other in zip(times["package"], took)) for n in (0, 1)
            ]
            medians = [1000 * statistics.median(pair[n] for pair in took) for n in (0, 1)]
            away = np.abs(pictures[name] - pictures["package"]).mean()
            print(f"  {name:25} {medians[0]:8.1f} {medians[1]:8.1f}   package / this {ratios[0]:.3f} {ratios[1]:.3f}"
                  f"   pixels differ by {away:.2f}")


if __name__ == "__main__":
    main()
