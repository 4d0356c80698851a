"""The rows about PDFs."""

from pathlib import Path

from . import checks, programs
from .documents import DRAWN_PAGES
from .rows import OURS, Contender, Row, bash

ROW_KEYS = ("combine", "split", "draw", "bind", "lock", "unlock", "shrink-photos", "shrink-text")


def _tamble(tool: str, folder: str, *settings: str) -> Contender:
    def command(inputs, output):
        return [inputs.tamble, tool, *settings, "--jobs", "2", "--save", output, *sorted(inputs.documents[folder].glob("*.pdf"))]

    return Contender(OURS, (), command)


def _only(inputs, folder: str) -> Path:
    return next(inputs.documents[folder].glob("*.pdf"))


def _one(name: str, needs: tuple, folder: str, command) -> Contender:
    """A peer that takes one document; `command`: from the document and the output folder to the command."""
    return Contender(name, needs, lambda inputs, output: bash(*command(_only(inputs, folder), output)))


def _pages(inputs, output, log) -> str:
    return f"{sum(map(checks.page_count, output.rglob('*.pdf')))} pages"


def _megabytes(output: Path) -> str:
    return f"{sum(file.stat().st_size for file in output.rglob('*.pdf')) / 1e6:.2f} MB"


def _documents(inputs) -> list:
    return [str(file) for file in sorted(inputs.documents["combinable"].glob("*.pdf"))]


def _photographs(inputs) -> list:
    return [str(file) for file in sorted(inputs.photographs.glob("*.jpg"))]


COMBINE = Row(
    "combine",
    "50 PDFs into one",
    (
        _tamble("pdf.merge", "combinable", "--name", "combined"),
        Contender("qpdf (no bookmarks)", ("qpdf",),
                  lambda inputs, output: bash("qpdf --empty --pages", _documents(inputs), "--", output / "combined.pdf")),
        Contender("pdfunite (no bookmarks)", ("pdfunite",),
                  lambda inputs, output: bash("pdfunite", _documents(inputs), output / "combined.pdf")),
        Contender("mutool (no form fields)", ("mutool",),
                  lambda inputs, output: bash("mutool merge -o", output / "combined.pdf", _documents(inputs))),
    ),
    made=_pages,
    left=lambda output: f"{checks.bookmark_count(next(output.rglob('*.pdf')))} bookmarks, {_megabytes(output)}",
    wanted={"qpdf (no bookmarks)": 0.35},
)  # fmt: skip

SPLIT = Row(
    "split",
    "every page of a manual on its own",
    (
        _tamble("pdf.split", "manual"),
        _one("qpdf", ("qpdf",), "manual", lambda file, output: ("qpdf --split-pages", file, output / "page.pdf")),
    ),
    made=lambda inputs, output, log: f"{checks.file_count(output)} files",
    wanted={"qpdf": 0.7},
    repetitions=3,
    makes_many_files=True,
)

DRAW = Row(
    "draw",
    f"{DRAWN_PAGES} pages to PNG at 150 dpi",
    (
        _tamble("pdf.toImages", "drawable", "--to", "png", "--dpi", "150"),
        _one("mutool", ("mutool",), "drawable", lambda file, output: ("mutool draw -q -r 150 -o", output / "%03d.png", file)),
        _one("pdftoppm", ("pdftoppm",), "drawable", lambda file, output: ("pdftoppm -png -r 150", file, output / "page")),
    ),
    made=lambda inputs, output, log: f"{checks.file_count(output)} pictures",
    wanted={"mutool": 0.8},
)

BIND = Row(
    "bind",
    "100 photographs into a PDF",
    (
        Contender(OURS, (), lambda inputs, output: [inputs.tamble, "pdf.fromImages", "--save", output, inputs.photographs]),
        Contender("img2pdf", ("img2pdf",),
                  lambda inputs, output: bash("img2pdf --rotation ifvalid -o", output / "photos.pdf", _photographs(inputs))),
        Contender("cat (no PDF)", ("cp",), lambda inputs, output: bash("cat", _photographs(inputs), ">", output / "all")),
    ),
    wanted={"img2pdf": 0.35},
    wanted_mebibytes=60,
    repetitions=2,
)  # fmt: skip

LOCK = Row(
    "lock",
    "a password added to a manual",
    (
        Contender(OURS, (), lambda inputs, output: [
            inputs.tamble, "pdf.addPassword", "--password-file", inputs.documents["locked"] / "password", "--save", output,
            _only(inputs, "manual")]),
        _one("qpdf", ("qpdf",), "manual",
             lambda file, output: ("qpdf --encrypt geheim geheim 256 --", file, output / "locked.pdf")),
    ),
    wanted={"qpdf": 1.0},
    repetitions=5,
)  # fmt: skip

UNLOCK = Row(
    "unlock",
    "a password removed from a manual",
    (
        Contender(OURS, (), lambda inputs, output: [
            inputs.tamble, "pdf.removePassword", "--password-file", inputs.documents["locked"] / "password", "--save", output,
            _only(inputs, "locked")]),
        _one("qpdf", ("qpdf",), "locked",
             lambda file, output: ("qpdf --decrypt --password=geheim", file, output / "open.pdf")),
    ),
    made=_pages,
    wanted={"qpdf": 1.0},
    repetitions=5,
)  # fmt: skip

SHRINK_PHOTOS = Row(
    "shrink-photos",
    "an album made smaller",
    (
        _tamble("pdf.compress", "album"),
        _one("Ghostscript /ebook", ("gs",), "album", lambda file, output: (
            "gs -q -sDEVICE=pdfwrite -dPDFSETTINGS=/ebook -dNOPAUSE -dBATCH -o", output / "album.pdf", file)),
    ),
    made=_pages,
    left=_megabytes,
    wanted={"Ghostscript /ebook": 0.35},
)  # fmt: skip

SHRINK_TEXT = Row(
    "shrink-text",
    "a manual made smaller",
    (
        _tamble("pdf.compress", "manual"),
        _one("qpdf, level 9", ("qpdf",), "manual", lambda file, output: (
            "qpdf --object-streams=generate --recompress-flate --compression-level=9", file, output / "manual.pdf")),
        _one("Ghostscript /ebook", ("gs",), "manual", lambda file, output: (
            "gs -q -sDEVICE=pdfwrite -dPDFSETTINGS=/ebook -dNOPAUSE -dBATCH -o", output / "manual.pdf", file)),
    ),
    made=_pages,
    left=_megabytes,
    wanted={"qpdf, level 9": 2.0},
    repetitions=3,
)  # fmt: skip

ALL = (COMBINE, SPLIT, DRAW, BIND, LOCK, UNLOCK, SHRINK_PHOTOS, SHRINK_TEXT)
