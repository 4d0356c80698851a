"""The rows of the table: the same work done by Tamble and by each of its peers."""

import shlex
from dataclasses import dataclass, field
from pathlib import Path
from typing import Callable

from . import checks, programs

OURS = "tamble"
WITHOUT_WORKERS = "tamble, all in one process"

# exiv2 has to be told the tags one by one.
EXIV2_LOCATION = [
    f"-Mdel Exif.GPSInfo.{tag}"
    for tag in (
        "GPSVersionID GPSLatitudeRef GPSLatitude GPSLongitudeRef GPSLongitude GPSAltitudeRef GPSAltitude GPSTimeStamp "
        "GPSSatellites GPSStatus GPSMeasureMode GPSDOP GPSSpeedRef GPSSpeed GPSTrackRef GPSTrack GPSImgDirectionRef "
        "GPSImgDirection GPSMapDatum GPSDestLatitudeRef GPSDestLatitude GPSDestLongitudeRef GPSDestLongitude "
        "GPSDestBearingRef GPSDestBearing GPSDestDistanceRef GPSDestDistance GPSProcessingMethod GPSAreaInformation "
        "GPSDateStamp GPSDifferential GPSHPositioningError"
    ).split()
] + [
    f"-Mdel {tag}" for tag in ("Xmp.exif.GPSLatitude", "Xmp.exif.GPSLongitude", "Xmp.photoshop.City", "Iptc.Application2.City")
]
EXIFTOOL_LOCATION = ["-gps:all=", "-xmp-exif:gps*=", "-xmp-photoshop:city=", "-iptc:city="]


@dataclass(frozen=True)
class Inputs:
    """What a run works on; `tamble` and `bench` are our programs."""

    photographs: Path
    many_files: Path
    small_files: Path
    camera_files: Path
    tamble: Path
    bench: Path
    # Folders of PDFs, by what is done with them.
    documents: dict = field(default_factory=dict)


@dataclass(frozen=True)
class Contender:
    name: str
    needs: tuple
    # From the inputs and a fresh output folder to the command; a string is for bash.
    command: Callable[[Inputs, Path], list | str]


@dataclass(frozen=True)
class Row:
    key: str
    title: str
    contenders: tuple
    # From the inputs, the output folder and the log to what was made: equal for like work, for all contenders.
    made: Callable[[Inputs, Path, Path], str] = lambda inputs, output, log: ""
    # What an independent reader still finds afterwards; shown, not compared.
    left: Callable[[Path], str] | None = None
    # The ratios that are wanted, by peer.
    wanted: dict = field(default_factory=dict)
    # The most memory that is wanted, in MiB.
    wanted_mebibytes: int | None = None
    # Short work is repeated more often.
    repetitions: int = 1
    makes_many_files: bool = False
    # Fills the output folder before each run, for work that is done in place.
    prepare: Callable[[Inputs, Path], None] | None = None


def bash(*parts) -> str:
    """Parts that are paths or lists of words are quoted; strings are taken as they are."""

    def text(part):
        if isinstance(part, Path):
            return shlex.quote(str(part))
        return shlex.join(part) if isinstance(part, list) else part

    return " ".join(map(text, parts))


def _photos(inputs: Inputs) -> str:
    return bash("find", inputs.photographs, "-name '*.jpg' -print0 | sort -z |")


def _ours(tool: str, *settings: str) -> tuple:
    """Tamble, and itself without the worker processes in which it decodes: what these cost."""

    def command(inputs, output):
        return [inputs.tamble, tool, *settings, "--jobs", "2", "--save", output, inputs.photographs]

    def command_in_process(inputs, output):
        return [Path("/usr/bin/env"), "TAMBLE_IN_PROCESS=1", *command(inputs, output)]

    return Contender(OURS, (), command), Contender(WITHOUT_WORKERS, (), command_in_process)


def _sharp(work: str) -> Contender:
    script = programs.BENCHMARKS / "peers" / "sharp.mjs"
    return Contender(
        "sharp", ("sharp", "node"), lambda inputs, output: [programs.path_of("node"), script, work, "2", output, inputs.photographs]
    )


def _in_chunks(name: str, needs: tuple, command: Callable[[Path], list], processes: int) -> Contender:
    """One process for all photographs, or two for a half each."""

    def on(inputs, output):
        chunk = -(-sum(1 for _ in inputs.photographs.iterdir()) // processes)
        return bash(_photos(inputs), f"xargs -0 -P{processes} -n{chunk}", command(output))

    return Contender(name, needs, on)


def _exiv2(inputs: Inputs, output: Path) -> str:
    """It edits in place, so it works on a copy."""
    return bash(
        "cp -RT", inputs.photographs, output, "&& find", output,
        "-name '*.jpg' -print0 | xargs -0 -P2 -n50 exiv2", EXIV2_LOCATION, "modify",
    )  # fmt: skip


def _same_count(inputs, output, log) -> str:
    return f"{checks.file_count(output)} files"


WEBP = Row(
    "webp",
    "photos to WebP, quality 0.8",
    (
        *_ours("image.convert", "--to", "webp", "--quality", "balanced"),
        Contender(
            "cwebp",
            ("cwebp",),
            lambda inputs, output: bash(
                f"export OUT={shlex.quote(str(output))};", _photos(inputs), "xargs -0 -P2 -n1 bash -c",
                ['name=${0##*/}; exec cwebp -quiet -q 80 -metadata exif "$0" -o "$OUT/${name%.jpg}.webp"'],
            ),
        ),
        _sharp("webp"),
    ),
    made=lambda inputs, output, log: checks.dimensions(output),
    wanted={"cwebp": 1.0, "sharp": 0.85, WITHOUT_WORKERS: 1.03},
    wanted_mebibytes=200,
)  # fmt: skip

RESIZE = Row(
    "resize",
    "photos to longest side 1920, JPEG 0.8",
    (
        *_ours("image.resize", "--max-pixel-size", "1920", "--quality", "balanced"),
        _sharp("resize"),
        Contender(
            "vipsthumbnail",
            ("vipsthumbnail",),
            lambda inputs, output: bash(
                "export VIPS_CONCURRENCY=1;", _photos(inputs), "xargs -0 -P2 -n10 vipsthumbnail --size '1920x1920>'",
                "--export-profile srgb -o", [f"{output}/%s.jpg[Q=80]"],
            ),
        ),
    ),
    made=lambda inputs, output, log: checks.dimensions(output),
    wanted={"sharp": 1.0, WITHOUT_WORKERS: 1.03},
    wanted_mebibytes=250,
)  # fmt: skip

HIDDEN = Row(
    "hidden",
    "everything hidden removed, picture untouched",
    (
        *_ours("image.removeMetadata", "--remove-all-metadata"),
        _in_chunks("exiftool, one process", ("exiftool",), lambda out: ["exiftool", "-q", "-all=", "-o", f"{out}/"], 1),
        _in_chunks("exiftool, two processes", ("exiftool",), lambda out: ["exiftool", "-q", "-all=", "-o", f"{out}/"], 2),
        Contender("cp (no work)", ("cp",), lambda inputs, output: [programs.path_of("cp"), "-RT", inputs.photographs, output]),
    ),
    made=_same_count,
    left=checks.still_hidden,
    wanted={"exiftool, one process": 0.5},
    repetitions=3,
)

LOCATION = Row(
    "location",
    "only the location removed, picture untouched",
    (
        *_ours("image.removeMetadata", "--remove-location"),
        _in_chunks("exiftool, one process", ("exiftool",), lambda out: ["exiftool", "-q", *EXIFTOOL_LOCATION, "-o", f"{out}/"], 1),
        _in_chunks("exiftool, two processes", ("exiftool",), lambda out: ["exiftool", "-q", *EXIFTOOL_LOCATION, "-o", f"{out}/"], 2),
        Contender("exiv2, two processes", ("exiv2",), _exiv2),
    ),
    made=_same_count,
    left=checks.still_located,
    wanted={"exiftool, one process": 0.25},
    repetitions=3,
)

SCAN = Row(
    "scan",
    "folders scanned, in natural order",
    (
        Contender(OURS, (), lambda inputs, output: [inputs.tamble, "scan", "--json", inputs.many_files]),
        Contender(
            "fd and sort (no sizes)",
            ("fd",),
            lambda inputs, output: bash("fdfind --threads 2 --unrestricted --type f .", inputs.many_files, "| sort -V"),
        ),
        Contender(
            "Python scandir",
            ("python3",),
            lambda inputs, output: [programs.path_of("python3"), programs.BENCHMARKS / "peers" / "scandir.py", inputs.many_files],
        ),
    ),
    made=lambda inputs, output, log: f"{checks.listed_files(log)} files",
    wanted={"fd and sort (no sizes)": 0.7, "Python scandir": 0.7},
    repetitions=3,
)

COPY = Row(
    "copy",
    "copy-through job over small files",
    (
        Contender(OURS, (), lambda inputs, output: [inputs.bench, inputs.small_files, output, "2"]),
        Contender("cp -r", ("cp",), lambda inputs, output: [programs.path_of("cp"), "-rT", inputs.small_files, output]),
    ),
    made=_same_count,
    wanted={"cp -r": 3.0},
    repetitions=3,
    makes_many_files=True,
)


def _rename_script(output: Path, pattern: str) -> list:
    return [programs.path_of("python3"), str(programs.BENCHMARKS / "peers" / "rename.py"), str(output), pattern]


RENAME = Row(
    "rename",
    "5,000 files renamed in place, and back",
    (
        Contender(
            OURS,
            (),
            lambda inputs, output: bash(
                inputs.tamble, "files.rename", output, ["--text", "Goa trip", "--numbering", "after", "--digits", "4"],
                "&&", inputs.tamble, "undo",
            ),
        ),
        Contender(
            "mmv",
            ("mmv",),
            lambda inputs, output: bash(
                "cd", output, "&&", ["mmv", "IMG_*.jpg", "Goa trip #1.jpg"], "&&", ["mmv", "Goa trip *.jpg", "IMG_#1.jpg"]
            ),
        ),
        Contender(
            "Python os.rename",
            ("python3",),
            lambda inputs, output: bash(
                _rename_script(output, "Goa trip %04d.jpg"), "&&", _rename_script(output, "IMG_%04d.jpg")
            ),
        ),
    ),
    prepare=lambda inputs, output: checks.link_files(inputs.camera_files, output),
    made=lambda inputs, output, log: checks.names(output),
    wanted={"Python os.rename": 1.5},
    repetitions=3,
)  # fmt: skip


def _start(key: str, argument: str) -> Row:
    return Row(
        key,
        f"tamble {argument}",
        (
            Contender(OURS, (), lambda inputs, output: [inputs.tamble, argument]),
            Contender("qpdf --version", ("qpdf",), lambda inputs, output: [programs.path_of("qpdf"), "--version"]),
        ),
        wanted={"qpdf --version": 2.0},
        repetitions=20,
    )


ALL = (WEBP, RESIZE, HIDDEN, LOCATION, SCAN, COPY, RENAME, _start("tools", "tools"), _start("help", "--help"))
