# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The example of the sky, on a made-up one whose shares are known: a quarter of the azimuths, between north-west
and north-east, down to 60 degrees from the zenith. Run with PYTHONPATH at the package."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import numpy as np

EXAMPLE = pathlib.Path(__file__).parents[2] / "python" / "examples" / "sky.py"
NORTH = 30  # degrees clockwise from the top
# Without Pillow, as on a machine that has none: pictures become arrays.
WITHOUT_PILLOW = "import sys; sys.modules['PIL'] = None; sys.argv = sys.argv[1:]; exec(open(sys.argv[0]).read())"


def quarter_of_sky():
    y, x = np.mgrid[0:700, 0:800]
    right, up = x - 410.0, 340.0 - y
    zenith = np.hypot(right, up) / 300 * 90
    azimuth = np.degrees(np.arctan2(right, up)) - NORTH
    sky = (zenith < 60) & (np.abs((azimuth + 180) % 360 - 180) < 45)
    photo = np.where(sky[..., None], [90, 140, 230], [30, 40, 12])
    return np.where(zenith[..., None] <= 90, photo, 0).astype(np.uint8)


class Sky(unittest.TestCase):
    def test_shares_and_compass(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            np.save(folder / "photo.npy", quarter_of_sky())
            words = [EXAMPLE, folder / "photo.npy", folder, "--circle", "410,340,300", "--north", str(NORTH)]
            told = subprocess.run(
                [sys.executable, "-c", WITHOUT_PILLOW, *map(str, words)], check=True, capture_output=True, text=True
            ).stdout
            unrolled = np.load(folder / "sky-unrolled.npy")
            mask = np.load(folder / "sky-mask.npy")
        self.assertRegex(told, r"show (0\.999|1\.000)")
        rings = [float(share) for share in re.findall(r"^ *\d+ to \d+ +([\d.]+) %", told, re.M)]
        np.testing.assert_allclose(rings, [25] * 6 + [0] * 3, atol=0.5)
        # A quarter of the cap down to 60 degrees, 1 - cos 60 of the half sphere; by the cosine sin^2 60 of it.
        self.assertAlmostEqual(float(re.search(r"^all +([\d.]+)", told, re.M)[1]), 12.5, delta=0.2)
        self.assertAlmostEqual(float(re.search(r"^sky view +([\d.]+)", told, re.M)[1]), 18.75, delta=0.2)
        self.assertEqual(mask[220, 480], 255)
        # 1440 columns from north over east, 400 rows for 90 degrees from the zenith down; beside the marks.
        blue = unrolled[..., 2].astype(int)
        for azimuth, zenith, expected in ((20, 50, 230), (60, 50, 12), (300, 50, 12), (335, 50, 230), (20, 70, 12)):
            with self.subTest(azimuth=azimuth, zenith=zenith):
                self.assertAlmostEqual(blue[zenith * 400 // 90, azimuth * 4], expected, delta=3)


if __name__ == "__main__":
    unittest.main()
