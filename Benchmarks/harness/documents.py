"""Makes PDFs to work on out of manuals that Debian ships and the benchmark's photographs."""

import shutil
import subprocess
from pathlib import Path

from . import programs

# Long manuals with bookmarks, links and named places, of Debian's packages gnuplot-doc and bash-doc.
MANUALS = (
    Path("/usr/share/doc/gnuplot/gnuplot.pdf"),
    Path("/usr/share/doc/bash/bashref.pdf"),
    Path("/usr/share/doc/bash/bash.pdf"),
)
DRAWN_PAGES = 50


def are_there() -> bool:
    tools = all(map(programs.is_installed, ("qpdf", "img2pdf", "vipsthumbnail")))
    return tools and all(manual.exists() for manual in MANUALS)


def _made(folder: Path, make) -> Path:
    if not folder.is_dir():
        unfinished = folder.with_name(folder.name + ".unfinished")
        shutil.rmtree(unfinished, ignore_errors=True)
        unfinished.mkdir(parents=True)
        make(unfinished)
        unfinished.rename(folder)
    return folder


def _run(*command):
    subprocess.run([str(part) for part in command], check=True, capture_output=True)


def _photo_pdf(photographs, size: str, target: Path):
    """Photographs on A4 pages."""
    scaled = target.with_suffix("")
    scaled.mkdir()
    _run("vipsthumbnail", "--size", size, "--export-profile", "srgb", "-o", f"{scaled}/%s.jpg[Q=92]", *photographs)
    _run("img2pdf", "--pagesize", "A4", "--fit", "shrink", "-o", target, *sorted(scaled.iterdir()))
    shutil.rmtree(scaled)


def combinable(cache: Path, photographs: Path) -> Path:
    """Fifty PDFs, half manuals and half photographs, with some 48 MB."""

    def make(folder):
        pictures = sorted(photographs.glob("*.jpg"))
        for number in range(25):
            shutil.copyfile(MANUALS[number % len(MANUALS)], folder / f"{2 * number + 1:02} manual.pdf")
            chosen = [pictures[(3 * number + k) % len(pictures)] for k in range(2)]
            _photo_pdf(chosen, "1600x1600>", folder / f"{2 * number + 2:02} photos.pdf")

    return _made(cache / "pdf-combinable", make)


def manual(cache: Path) -> Path:
    """One long manual."""
    return _made(cache / "pdf-manual", lambda folder: shutil.copyfile(MANUALS[0], folder / "manual.pdf"))


def locked(cache: Path) -> Path:
    def make(folder):
        _run("qpdf", "--encrypt", "geheim", "geheim", "256", "--", MANUALS[0], folder / "locked.pdf")
        (folder / "password").write_text("geheim\n")

    return _made(cache / "pdf-locked", make)


def drawable(cache: Path) -> Path:
    """The manual's pages 20 to 69."""
    return _made(
        cache / "pdf-drawable",
        lambda folder: _run("qpdf", MANUALS[0], "--pages", ".", f"20-{19 + DRAWN_PAGES}", "--", folder / "pages.pdf"),
    )


def album(cache: Path, photographs: Path) -> Path:
    """Photographs on A4 pages, some 48 MB."""

    def make(folder):
        _photo_pdf(sorted(photographs.glob("*.jpg"))[:24], "3000x3000>", folder / "album.pdf")

    return _made(cache / "pdf-album", make)
