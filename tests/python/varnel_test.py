# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Python package: arrays of all kinds, threads, errors, files. Run with PYTHONPATH at the package."""

import copy
import multiprocessing
import pathlib
import signal
import struct
import tempfile
import threading
import time
import unittest

import numpy as np
import varnel

SIZE = (96, 64)
RESULT = (60, 50)
MOST = {"uint8": 255, "uint16": 65535, "float32": 1.0}


def sigma():
    return varnel.Lens.from_catalogue("Sigma/EX 8 mm f:3.5")


def photo(sample, channels):
    """A smooth picture, another one in each channel; channels 0: without a third dimension."""
    y, x = np.mgrid[0 : SIZE[1], 0 : SIZE[0]]
    waves = [0.5 + 0.4 * np.sin(0.11 * (c + 1) * x + 0.07 * y + c) for c in range(max(channels, 1))]
    if channels in (2, 4):
        waves[-1] = np.ones_like(waves[-1])
    array = np.stack(waves, axis=2) * MOST[sample]
    return array.astype(sample) if channels else array[:, :, 0].astype(sample)


def remapped(array, **rest):
    return varnel.remap(array, sigma(), "panini", size=RESULT, rotate=(10, -20, 30), angle=120, **rest)


class Arrays(unittest.TestCase):
    def test_all_samples_and_channels_show_the_same_picture(self):
        truth = remapped(photo("float32", 4))
        for sample in MOST:
            for channels in range(5):
                with self.subTest(sample=sample, channels=channels):
                    result = remapped(photo(sample, channels))
                    self.assertEqual(result.shape, RESULT[::-1] + ((channels,) if channels else ()))
                    self.assertEqual(result.dtype, sample)
                    colours = channels - 1 if channels in (2, 4) else max(channels, 1)
                    got = result.reshape(RESULT[::-1] + (-1,))[:, :, :colours] / MOST[sample]
                    np.testing.assert_allclose(got, truth[:, :, :colours], atol=2.5 / 255)

    def test_rows_may_lie_anyhow(self):
        plain = photo("uint16", 3)
        wide = np.zeros((SIZE[1], SIZE[0] + 7, 3), np.uint16)
        wide[:, 5:-2] = plain
        below = np.zeros((2 * SIZE[1],) + plain.shape[1:], np.uint16)
        below[::2] = plain
        across = np.zeros((SIZE[1], SIZE[0], 5), np.uint16)
        across[:, :, :3] = plain
        cases = {
            "part of a wider one": wide[:, 5:-2],
            "every other row": below[::2],
            "upside down": plain[::-1].copy()[::-1],
            "left and right changed": plain[:, ::-1].copy()[:, ::-1],
            "columns first": np.asfortranarray(plain),
            "part of the channels": across[:, :, :3],
            "colours the other way": plain[:, :, ::-1].copy()[:, :, ::-1],
            "the other byte order": plain.astype(">u2"),
            "read only": np.frombuffer(plain.tobytes(), np.uint16).reshape(plain.shape),
        }
        truth = remapped(plain)
        for name, array in cases.items():
            with self.subTest(name):
                np.testing.assert_array_equal(remapped(array), truth)

    def test_out_is_written_where_it_lies(self):
        truth = remapped(photo("uint8", 3))
        frame = np.full((RESULT[1] + 4, RESULT[0] + 6, 3), 7, np.uint8)
        for name, part in (("part", frame[2:-2, 3:-3]), ("upside down", frame[2:-2, 3:-3][::-1])):
            with self.subTest(name):
                self.assertIs(remapped(photo("uint8", 3), out=part), part)
                np.testing.assert_array_equal(part, truth)
                frame[2:-2, 3:-3] = 7
                self.assertTrue((frame == 7).all(), "written beside it")
        both = np.concatenate([photo("uint8", 3), np.zeros_like(photo("uint8", 3))], axis=1)
        left, right = both[:, : SIZE[0]], both[:, SIZE[0] :]
        varnel.remap(left, sigma(), out=right)
        np.testing.assert_array_equal(right, varnel.remap(photo("uint8", 3), sigma()))

    def test_the_order_counts_for_the_colour_outside(self):
        lens = sigma()
        lens.set_circle((47.5, 31.5), 10, SIZE)
        white = np.full((SIZE[1], SIZE[0], 3), 255, np.uint8)
        for order, corner in (("RGB", [255, 128, 0]), ("BGR", [0, 128, 255])):
            view = {"settings": {"Outside": "#ff8000"}, "rotate": (0, 80, 0), "order": order}
            self.assertEqual(varnel.remap(white, lens, **view)[0, -1].tolist(), corner)

    def test_pictures_that_are_none_are_refused(self):
        good = photo("uint8", 3)
        fixed = np.zeros_like(good)
        fixed.flags.writeable = False
        cases = [
            ("samples are float64", good.astype(float), {}),
            ("samples are bool", good > 3, {}),
            ("samples are <U3", np.array([["abc"]]), {}),
            ("shape is (3,)", good[0, 0], {}),
            ("shape is (64, 96, 5)", np.zeros((64, 96, 5), np.uint8), {}),
            ("it has no pixels", good[:0], {}),
            ("32767", np.zeros((1, 32768), np.uint8), {}),
            ("order", good, {"order": "GBR"}),
            ("threads", good, {"threads": -1}),
            ("out: it shares memory", good, {"out": good}),
            ("out: it shares memory", good, {"out": good[::-1]}),
            ("out: its samples are uint16", good, {"out": good.astype(np.uint16)}),
            ("out: its shape is (64, 96)", good, {"out": good[:, :, 0].copy()}),
            ("out: its shape is (3,)", good, {"out": good[0, 0].copy()}),
            ("out: the pixels of its rows", good, {"out": np.zeros((64, 192, 3), np.uint8)[:, ::2]}),
            ("out: it cannot be written to", good, {"out": fixed}),
            ("out: it is no array", good, {"out": [[1]]}),
            ("Projection", good, {"projection": "panninni"}),
            ("angle", good, {"projection": "horizon", "angle": 90}),
            ("rotate", good, {"rotate": (1, 2)}),
            ("RotateX", good, {"rotate": (float("nan"), 0, 0)}),
            ("no setting", good, {"settings": {"Nothing": 1}}),
            ('mean "RotateX"', good, {"settings": {"RotatX": 1}}),
            ('mean "rectilinear"', good, {"projection": "rectilinar"}),
        ]
        for text, array, rest in cases:
            with self.subTest(text), self.assertRaises(varnel.ArgumentError) as raised:
                varnel.remap(array, sigma(), **rest)
            self.assertIn(text, str(raised.exception))
        with self.assertRaisesRegex(TypeError, "varnel.Lens is needed, not str"):
            varnel.remap(good, "Sigma/EX 8 mm f:3.5")


class Points(unittest.TestCase):
    def test_an_equidistant_lens_has_angles_as_its_radii(self):
        lens = varnel.Lens.from_curve(np.linspace(0, 100, 11), np.linspace(0, 1, 11))
        lens.set_circle((500, 400), 300, (1001, 801))
        toward = varnel.directions(lens, [[[500, 400], [590, 400]], [[500, 250], [np.nan, 3]]], (1001, 801))
        s30, c30, s50, c50 = (f(np.radians(a)) for a in (30, 50) for f in (np.sin, np.cos))
        np.testing.assert_allclose(
            toward, [[[0, 0, 1], [s30, 0, c30]], [[0, s50, c50], [np.nan] * 3]], atol=1e-5
        )
        np.testing.assert_allclose(
            varnel.points(lens, [[0, 3, 0], [0, 0, 0]], (1001, 801)), [[500, 130], [np.nan] * 2], atol=0.01
        )
        far = varnel.points(lens, varnel.directions(lens, [[100, 700]], (1001, 801)), (1001, 801))
        np.testing.assert_allclose(far, [[100, 700]], atol=0.01)

    def test_points_are_where_the_picture_has_them(self):
        size, result = (400, 400), (300, 240)
        view = {"projection": "stereographic", "rotate": (5, 20, 0), "angle": 100}
        spot = np.array([240.0, 170.0])
        y, x = np.mgrid[0:400, 0:400]
        drawn = varnel.remap(
            np.exp(-((x - spot[0]) ** 2 + (y - spot[1]) ** 2) / 18).astype(np.float32), sigma(), size=result, **view
        )
        y, x = np.mgrid[0:240, 0:300]
        seen = np.array([(drawn * x).sum(), (drawn * y).sum()]) / drawn.sum()
        told = varnel.source_to_result(sigma(), spot, size, result=result, **view)
        np.testing.assert_allclose(told, seen, atol=0.3)
        back = varnel.result_to_source(sigma(), np.stack([told, [1e5, 0]]), size, result=result, **view)
        np.testing.assert_allclose(back, np.stack([spot, [np.nan] * 2]), atol=0.01)


class Lenses(unittest.TestCase):
    def test_a_written_lens_is_the_same_again(self):
        lens = varnel.Lens.from_curve([0, 40, 90], [0, 1, 2])
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, "own.json")
            lens.write(path)
            again = varnel.Lens.from_file(path)
            self.assertEqual(len(varnel.lenses(path)), 1)
            with self.assertRaisesRegex(varnel.Error, "1"):
                varnel.Lens.from_file(path, 1)
        self.assertAlmostEqual(again.field, 90)
        points = [[10.0, 20.0], [70.0, 30.0]]
        for one in (lens, again):
            one.set_circle((47, 31), 30, SIZE)
        np.testing.assert_allclose(varnel.directions(again, points, SIZE), varnel.directions(lens, points, SIZE))

    def test_a_copy_has_a_circle_of_its_own(self):
        lens = sigma()
        for made in (lens.copy(), copy.copy(lens), copy.deepcopy(lens)):
            made.set_circle((40, 30), 20, SIZE)
            self.assertFalse(np.allclose(varnel.directions(made, [3, 4], SIZE), varnel.directions(lens, [3, 4], SIZE)))

    def test_a_circle_is_found(self):
        y, x = np.mgrid[0:300, 0:400]
        disc = np.where((x - 210) ** 2 + (y - 140) ** 2 < 120**2, 200, 4).astype(np.uint8)
        lens = sigma()
        lens.find_circle(np.stack([disc] * 3, axis=2))
        np.testing.assert_allclose(varnel.points(lens, [0, 0, 1], (400, 300)), [210, 140], atol=1)
        with self.assertRaisesRegex(varnel.NotFoundError, "no rim"):
            lens.find_circle(np.full((300, 400), 77, np.uint8))

    def test_lenses_that_are_none_are_told(self):
        cases = [
            (varnel.NotFoundError, 'no lens "Sigma/None"$', lambda: varnel.Lens.from_catalogue("Sigma/None")),
            (varnel.NotFoundError, 'mean "Sigma/EX 8 mm f:3.5"', lambda: varnel.Lens.from_catalogue("Sigma/EX 8mm f3.5")),
            (varnel.ReadError, "no-such-file", lambda: varnel.Lens.from_file("/no-such-file.json")),
            (varnel.ReadError, "no-such-file", lambda: varnel.Lens.of_photo("/no-such-file.jpg")),
            (varnel.ArgumentError, "number", lambda: varnel.Lens.from_file("/no-such-file.json", -1)),
            (varnel.ArgumentError, "have to rise", lambda: varnel.Lens.from_curve([0, 30, 20], [0, 1, 2])),
            (varnel.ArgumentError, "as many", lambda: varnel.Lens.from_curve([0, 30], [0])),
            (varnel.ArgumentError, "curve", lambda: sigma().write("/tmp/lens.json")),
            (varnel.NotMeasuredError, "few", lambda: varnel.measure_lens([np.zeros((200, 300), np.uint8)])),
            (varnel.ArgumentError, "photos", lambda: varnel.measure_lens([])),
            (TypeError, "from_catalogue", varnel.Lens),
        ]
        for kind, text, call in cases:
            with self.subTest(text), self.assertRaisesRegex(kind, text):
                call()


class Threads(unittest.TestCase):
    big = np.tile(photo("uint8", 3), (12, 12, 1))

    def test_threads_of_python_get_the_same_pictures(self):
        lens = sigma()
        truths = []
        for radius in (300, 500):
            lens.set_circle((575.5, 383.5), radius, (1152, 768))
            truths.append(varnel.remap(self.big, lens, threads=1))
        found = []

        def work(threads):
            for radius in (300, 500) * 3:
                lens.set_circle((575.5, 383.5), radius, (1152, 768))
                result = varnel.remap(self.big, lens, threads=threads)
                found.append([np.array_equal(result, truth) for truth in truths].count(True))

        workers = [threading.Thread(target=work, args=(n % 3,)) for n in range(6)]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()
        self.assertEqual(found, [1] * 36)

    def test_the_interpreter_goes_on_meanwhile(self):
        counted, done = [0], threading.Event()

        def count():
            while not done.is_set():
                counted[0] += 1
                time.sleep(0.0005)

        counter = threading.Thread(target=count)
        counter.start()
        before, since = counted[0], time.monotonic()
        out = np.empty((3000, 3000, 3), np.uint8)
        varnel.remap(self.big, sigma(), out=out, settings={"Sampling": "fine"}, threads=1)
        ran, took = counted[0] - before, time.monotonic() - since
        done.set()
        counter.join()
        self.assertGreater(ran, 10, f"in {took} s")

    def test_a_forked_process_has_threads_of_its_own(self):
        truth = varnel.remap(self.big, sigma(), threads=2)
        with multiprocessing.get_context("fork").Pool(1) as pool:
            np.testing.assert_array_equal(pool.apply_async(remapped_by_two, (self.big,)).get(60), truth)


class Files(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "results").mkdir()
        self.photos = [self.folder / f"{n}.bmp" for n in range(3)]
        for path in self.photos:
            path.write_bytes(bitmap_file(photo("uint8", 3)))
        self.words = {"output_dir": self.folder / "results", "gear": None}
        self.options = ["--camera", "Canon/EOS 5D", "--lens", "Sigma/EX 8 mm f:3.5", "--type", "png"]

    def convert(self, paths, **rest):
        return varnel.convert(paths, options=self.options, **self.words, **rest)

    def test_results_are_told_and_there(self):
        told = []
        results = self.convert(self.photos[:2], projection=["rectilinear", "panini"], report=told.append)
        self.assertEqual(told, results)
        self.assertEqual(len(results), 4)
        for result in results:
            self.assertEqual(result["status"], "converted")
            self.assertTrue(pathlib.Path(result["result"]).is_file())
        self.assertEqual(self.convert(str(self.photos[2]))[0]["width"], SIZE[0])

    def test_the_rest_is_done_when_one_fails(self):
        with self.assertRaisesRegex(varnel.WriteError, "missing.jpg") as raised:
            self.convert([self.photos[0], self.folder / "missing.jpg", self.photos[1]])
        self.assertEqual(
            sorted(result["status"] for result in raised.exception.results), ["converted", "converted", "failed"]
        )
        with self.assertRaisesRegex(varnel.ArgumentError, "frobnicate"):
            varnel.convert(self.photos, options=["--frobnicate"])

    def test_the_report_and_signals_end_the_run(self):
        def fail(result):
            raise KeyError("mine")

        def interrupt(result):
            signal.raise_signal(signal.SIGINT)

        self.options.append("--force")
        cases = [(varnel.StoppedError, lambda result: False), (KeyError, fail), (KeyboardInterrupt, interrupt)]
        for kind, report in cases:
            told = []
            with self.subTest(kind), self.assertRaises(kind):
                self.convert(self.photos * 20, report=lambda result: told.append(result) or report(result))
            self.assertLess(len(told), 60)


def remapped_by_two(array):
    return varnel.remap(array, sigma(), threads=2)


def bitmap_file(array):
    """A BMP file of 24 bits; rows of a multiple of 4 bytes."""
    height, width = array.shape[:2]
    body = array[::-1, :, ::-1].tobytes()
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    return b"BM" + struct.pack("<IHHI", 54 + len(body), 0, 0, 54) + header + body


if __name__ == "__main__":
    unittest.main()
