# SPDX-FileCopyrightText: Varnel developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Straighten with Varnel: an entry for photos in the menu of Nautilus, with one for each preset.

Presets are asked of varnel-convert, anew only when Varnel's settings have changed: Nautilus asks for
the entries whenever something is selected, and waits for them.
"""

import locale
import os
import subprocess

from gi.repository import GObject, Nautilus

PHOTO_TYPES = frozenset(
    "image/" + kind
    for kind in (
        "jpeg tiff png bmp jp2 webp x-adobe-dng heif avif jxl x-canon-cr2 x-canon-cr3 x-canon-crw "
        "x-fuji-raf x-kodak-dcr x-kodak-kdc x-minolta-mrw x-nikon-nef x-olympus-orf x-panasonic-rw2 "
        "x-pentax-pef x-sony-arw x-sony-sr2"
    ).split()
)

TEXTS = {
    "de": {
        "Straighten with Varnel": "Mit Varnel geraderichten",
        "Real estate": "Immobilie",
        "Group photo": "Gruppenfoto",
        "Whole circle": "Ganzer Kreis",
        "Horizon strip": "Horizontstreifen",
    },
    "es": {
        "Straighten with Varnel": "Enderezar con Varnel",
        "Real estate": "Inmobiliaria",
        "Group photo": "Foto de grupo",
        "Whole circle": "Círculo entero",
        "Horizon strip": "Franja de horizonte",
    },
    "fr": {
        "Straighten with Varnel": "Redresser avec Varnel",
        "Real estate": "Immobilier",
        "Group photo": "Photo de groupe",
        "Whole circle": "Cercle entier",
        "Horizon strip": "Bande d’horizon",
    },
}

LONGEST_WAIT = 3  # seconds for the presets; without them there is no entry


def translated(text):
    """The text in the desktop's language, else as it is."""
    language = (locale.getlocale(locale.LC_MESSAGES)[0] or "")[:2]
    return TEXTS.get(language, {}).get(text, text)


def settings_time():
    """When Varnel's settings were changed, or None while there are none."""
    folder = os.environ.get("XDG_CONFIG_HOME") or os.path.expanduser("~/.config")
    try:
        return os.stat(os.path.join(folder, "Varnel", "Varnel.conf")).st_mtime_ns
    except OSError:
        return None


class Presets:
    """The names of all presets, built-in ones first."""

    def __init__(self):
        self._time = None
        self._names = []

    def names(self):
        time = settings_time()
        if not self._names or time != self._time:
            self._names = self._ask()
            self._time = time
        return self._names

    @staticmethod
    def _ask():
        try:
            said = subprocess.run(
                ["varnel-convert", "--list-presets"],
                stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL,
                timeout=LONGEST_WAIT,
                check=True,
            ).stdout
        except (OSError, subprocess.SubprocessError):
            return []
        return said.decode("utf-8", "replace").splitlines()


def photo_paths(files):
    """The paths of the files, or none at all where one is no photo on this computer's file system."""
    paths = []
    for file in files:
        path = file.get_location().get_path()
        if path is None or file.get_mime_type() not in PHOTO_TYPES:
            return []
        paths.append(path)
    return paths


def straighten(_item, preset, paths):
    """Does not wait: Varnel itself tells how it ended."""
    subprocess.Popen(
        ["varnel", "--beside", "--preset", preset, "--", *paths],
        stdin=subprocess.DEVNULL,
        start_new_session=True,
    )


class VarnelMenu(GObject.GObject, Nautilus.MenuProvider):
    def __init__(self):
        super().__init__()
        self._presets = Presets()

    def get_file_items(self, *arguments):
        """Called with the files, and before version 43 with a window in front of them."""
        paths = photo_paths(arguments[-1])
        names = self._presets.names() if paths else []
        if not names:
            return []
        entries = Nautilus.Menu()
        for number, name in enumerate(names):
            entry = Nautilus.MenuItem(
                name=f"Varnel::Preset{number}", label=translated(name), icon="varnel"
            )
            entry.connect("activate", straighten, name, paths)
            entries.append_item(entry)
        menu = Nautilus.MenuItem(
            name="Varnel::Straighten", label=translated("Straighten with Varnel"), icon="varnel"
        )
        menu.set_submenu(entries)
        return [menu]

    def get_background_items(self, *_arguments):
        return []
