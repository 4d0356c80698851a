"""Makes 100 photographs of 8 to 24 megapixels out of ten that Debian ships, as cameras and phones would leave them."""

import csv
import math
import random
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

from . import programs

# Photographs (not drawings) of wallpaper packages; the photographers are named in the file names.
PACKAGES = ("lomiri-wallpapers-16.04", "lomiri-wallpapers-20.04")
SOURCES = (
    "Bridge_by_Sander_Klootwijk.jpg",
    "Dragonfly_by_Bolly.jpg",
    "Kleiber_by_Lukas_Baubkus.jpg",
    "Wine_by_Jakkub_Mede.jpg",
    "aitzgorri_by_Aitzol_Berasategi.jpg",
    "friends_by_Aitzol_Berasategi.jpg",
    "life_by_Aitzol_Berasategi.jpg",
    "picosdeeuropa_by_Aitzol_Berasategi.jpg",
    "seeding_by_Clements_Engelhardt.jpg",
    "sunset_by_Aitzol_Berasategi.jpg",
)
COUNT = 100
MEGAPIXELS = (8, 10, 12, 12, 12, 16, 16, 20, 24, 12)
# Larger than this a photograph of Debian's is not drawn: it would be softer than any camera's.
LARGEST_SCALE = 1.4


@dataclass(frozen=True)
class Variation:
    name: str
    source: Path
    crop: tuple  # left, top, width, height in pixels of the source
    scale: float
    mirrored: bool
    noise_seed: int
    wide_gamut: bool


def _run(*command):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
    return done.stdout


def _fetch(folder: Path) -> Path:
    """Fetches and unpacks the packages, without installing them."""
    unpacked = folder / "unpacked"
    if not unpacked.is_dir():
        packages = folder / "packages"
        packages.mkdir(parents=True, exist_ok=True)
        subprocess.run(["apt-get", "download", *PACKAGES], cwd=packages, check=True, capture_output=True)
        partial = folder / "unpacked.unfinished"
        for package in packages.glob("*.deb"):
            _run("dpkg", "-x", package, partial)
        partial.rename(unpacked)
    return unpacked / "usr/share/backgrounds"


def _variations(sources: Path):
    chance = random.Random(8)
    sizes = {name: [int(_run("vipsheader", "-f", side, sources / name)) for side in ("width", "height")] for name in SOURCES}
    for index in range(COUNT):
        name = SOURCES[index % len(SOURCES)]
        width, height = sizes[name]
        part = chance.uniform(0.88, 1) if index >= len(SOURCES) else 1
        crop_width, crop_height = int(width * part), int(height * part)
        wanted = MEGAPIXELS[(index + index // 10) % len(MEGAPIXELS)] * 1e6
        smallest = math.sqrt(8e6 / (crop_width * crop_height))
        scale = max(smallest, min(LARGEST_SCALE, math.sqrt(wanted / (crop_width * crop_height))))
        crop = (chance.randint(0, width - crop_width), chance.randint(0, height - crop_height), crop_width, crop_height)
        yield Variation(f"IMG_{index + 1:04}.jpg", sources / name, crop, scale, index // 10 % 2 == 1, index, index % 5 == 4)


def _make(variation: Variation, folder: Path) -> None:
    work = folder / f"{variation.name}.work"
    work.mkdir()
    step = [work / f"{number}.v" for number in range(6)]
    _run("vips", "crop", variation.source, step[0], *variation.crop)
    _run("vips", "resize", step[0], step[1], variation.scale * (1 + 1e-4))
    picture = step[1]
    if variation.mirrored:
        _run("vips", "flip", picture, step[2], "horizontal")
        picture = step[2]
    # Scaling takes away the noise of the sensor, which encoders have to deal with; this gives it back.
    width, height = (_run("vipsheader", "-f", side, picture).strip() for side in ("width", "height"))
    _run("vips", "gaussnoise", step[3], width, height, "--sigma", 2.5, "--mean", 0, "--seed", variation.noise_seed)
    _run("vips", "add", picture, step[3], step[4])
    target = f"{folder / variation.name}[Q=93,strip]"
    if variation.wide_gamut:
        _run("vips", "cast", step[4], step[5], "uchar")
        # Nothing but the profile is to be kept, which `strip` would take as well.
        target = f"{folder / variation.name}[Q=93]"
        _run("vips", "icc_transform", step[5], target, "p3", "--input-profile", "srgb")
    else:
        _run("vips", "cast", step[4], target, "uchar")
    shutil.rmtree(work)


def _describe(folder: Path) -> None:
    """Camera, date and place in EXIF, places also in XMP and IPTC here and there, thumbnails, all orientations."""
    thumbnails = folder / "thumbnails"
    thumbnails.mkdir()
    names = sorted(path.name for path in folder.glob("*.jpg"))
    paths = [folder / name for name in names]
    _run("vipsthumbnail", "-s", "160x160", "-o", f"{thumbnails}/%s.jpg", *paths)
    table = folder / "details.csv"
    with table.open("w", newline="") as file:
        rows = csv.writer(file)
        rows.writerow(
            "SourceFile IFD0:Make IFD0:Model IFD0:Orientation ExifIFD:DateTimeOriginal ExifIFD:ExposureTime ExifIFD:FNumber "
            "ExifIFD:ISO ExifIFD:SerialNumber GPS:GPSLatitude GPS:GPSLatitudeRef GPS:GPSLongitude GPS:GPSLongitudeRef "
            "GPS:GPSAltitude XMP-exif:GPSLatitude XMP-exif:GPSLongitude XMP-photoshop:City IPTC:City".split()
        )
        for index, path in enumerate(paths):
            latitude, longitude = 40 + index / 7, -120 + index * 2.4
            west = "W" if longitude < 0 else "E"
            in_xmp = (latitude, longitude, "Placetown") if index % 4 == 0 else ("", "", "")
            taken = f"2024:{1 + index % 12:02}:{1 + index % 28:02} {8 + index % 12:02}:30:{index % 60:02}"
            camera = ("Bench", f"Camera {1 + index % 3}", 1 + index % 8, taken, 1 / 250, 2.8, 100 + index, f"SN{index:06}")
            place = (latitude, "N", abs(longitude), west, 120 + index)
            rows.writerow((path, *camera, *place, *in_xmp, "Placetown" if index % 5 == 0 else ""))
    _run("exiftool", "-q", "-n", "-overwrite_original", f"-csv={table}", *paths)
    _run("exiftool", "-q", "-overwrite_original", f"-ThumbnailImage<={thumbnails}/%f.jpg", *paths)
    shutil.rmtree(thumbnails)
    table.unlink()


def photographs(cache: Path, say) -> Path:
    """The folder of the photographs, which is made on the first call. Takes vips, exiftool and apt."""
    folder = cache / "photographs"
    if folder.is_dir():
        return folder
    missing = [name for name in ("vips", "vipsthumbnail", "exiftool") if not programs.is_installed(name)]
    if missing:
        raise RuntimeError("making the photographs takes " + ", ".join(map(programs.how_to_install, missing)))
    say(f"Making {COUNT} photographs from {len(SOURCES)} of {', '.join(PACKAGES)}; this is done once")
    sources = _fetch(cache)
    unfinished = cache / "photographs.unfinished"
    shutil.rmtree(unfinished, ignore_errors=True)
    unfinished.mkdir(parents=True)
    with ThreadPoolExecutor(2) as pool:
        list(pool.map(lambda variation: _make(variation, unfinished), _variations(sources)))
    _describe(unfinished)
    unfinished.rename(folder)
    return folder


def first(folder: Path, count: int, cache: Path) -> Path:
    """A folder of only the first photographs, for a quick look."""
    some = cache / f"photographs-{count}"
    if not some.is_dir():
        some.mkdir()
        for path in sorted(folder.iterdir())[:count]:
            (some / path.name).hardlink_to(path)
    return some
