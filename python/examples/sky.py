# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The sky of a hemispherical photo: sky.py PHOTO [FOLDER] [--circle X,Y,R] [--lens FILE] [--north DEGREES]

Prints the share of sky by rings of zenith angles and writes three pictures into the folder (default: the
current one): rings over the photo, what counts as sky, and the sky unrolled with a compass. The photo looks
straight up. Cells begin with "# %%", as editors know them; no display is needed. Photos are read and
pictures written with Pillow (Debian: python3-pil); arrays of .npy files go without.
"""

# %% What is asked for
import argparse
import pathlib

import numpy as np
import varnel

parser = argparse.ArgumentParser(description="Measures the sky of a hemispherical photo.")
parser.add_argument("photo", type=pathlib.Path)
parser.add_argument("folder", type=pathlib.Path, nargs="?", default=pathlib.Path())
parser.add_argument("--circle", help="centre and radius of the image circle in pixels; else it is found")
parser.add_argument("--lens", help="a file with the lens; else it is equidistant with a field of 180 degrees")
parser.add_argument("--north", type=float, default=0, help="degrees clockwise from the top of the photo to north")
asked = parser.parse_args()


# %% The photo and its lens
def read(path):
    if path.suffix == ".npy":
        return np.load(path)
    from PIL import Image

    return np.asarray(Image.open(path).convert("RGB"))


def write(path, picture):
    try:
        from PIL import Image
    except ImportError:
        np.save(path.with_suffix(".npy"), picture)
    else:
        Image.fromarray(picture).save(path)


photo = read(asked.photo)
height, width = photo.shape[:2]
size = width, height
lens = varnel.Lens.from_file(asked.lens) if asked.lens else varnel.Lens.from_curve([0, 90], [0, 1])
if asked.circle:
    x, y, radius = (float(number) for number in asked.circle.split(","))
    lens.set_circle((x, y), radius, size)
else:
    lens.find_circle(photo)

# %% Where each pixel looks: the angle from the zenith, and the solid angle that it covers, by the directions
# of its corners. Whole numbers are the middles of pixels, so the corners lie half a pixel beside them.
corners = np.stack(np.meshgrid(np.arange(width + 1) - 0.5, np.arange(height + 1) - 0.5), axis=2)
toward = varnel.directions(lens, corners, size)
falling, rising = toward[1:, 1:] - toward[:-1, :-1], toward[:-1, 1:] - toward[1:, :-1]
steradians = np.linalg.norm(np.cross(falling, rising), axis=2) / 2
middle = toward[:-1, :-1] + toward[1:, 1:]
zenith = np.degrees(np.arctan2(np.hypot(middle[..., 0], middle[..., 1]), middle[..., 2]))
inside = zenith <= min(lens.field, 90)
print(f"{inside.sum()} pixels show {steradians[inside].sum() / (2 * np.pi):.4f} of the half sphere")


# %% What is sky: bright in blue, by the bound that parts the two kinds best (Otsu's)
def best_bound(values):
    counts, edges = np.histogram(values, bins=256)
    middles = (edges[:-1] + edges[1:]) / 2
    below, sums = np.cumsum(counts)[:-1], np.cumsum(counts * middles)
    above = counts.sum() - below
    spread = below * above * (sums[:-1] / below - (sums[-1] - sums[:-1]) / above) ** 2
    return edges[1 + np.argmax(spread)]


blue = photo[..., 2] if photo.ndim == 3 else photo
bound = best_bound(blue[inside])
sky = (blue >= bound) & inside
print(f"sky has {bound:.1f} of blue or more")

# %% The share of sky by rings of 10 degrees, of the half sphere, and as a level surface sees it
print("zenith angle      sky")
for ring in range(0, 90, 10):
    of_ring = inside & (zenith >= ring) & (zenith < ring + 10)
    share = steradians[sky & of_ring].sum() / max(steradians[of_ring].sum(), 1e-9)
    print(f"{ring:3} to {ring + 10:2}    {100 * share:8.2f} %")
level = np.cos(np.radians(zenith)) * steradians
print(f"all          {100 * steradians[sky].sum() / steradians[inside].sum():8.2f} %")
print(f"sky view     {100 * level[sky].sum() / level[inside].sum():8.2f} %")

# %% Pictures: every other ring brighter, and the sky
colours = (photo if photo.ndim == 3 else np.repeat(photo[..., None], 3, axis=2))[..., :3]
brighter = 60 * (inside & (zenith // 10 % 2 == 0))[..., None]
write(asked.folder / "sky-rings.png", np.minimum(colours.astype(np.int32) + brighter, 255).astype(np.uint8))
write(asked.folder / "sky-mask.png", np.where(sky, 255, 0).astype(np.uint8))

# %% The sky unrolled, from north over east: for who looks up, east lies to the left of north. The zenith is
# above, the horizon below.
unrolled = varnel.remap(
    np.ascontiguousarray(colours),
    lens,
    "unrolled",
    size=(1440, 400),
    rotate=(0, 0, (180 - asked.north) % 360 - 180),
    settings={
        "Pose": "up",
        "UnrollDirection": -1,
        "UnrollFrom": 90,
        "UnrollTo": 0,
        "Marks": -1,
        "Sampling": "fine",
    },
)
write(asked.folder / "sky-unrolled.png", unrolled)
