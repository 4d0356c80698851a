"""The programs that are measured or that make the inputs: where they are, which version, where to get them."""

import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path

BENCHMARKS = Path(__file__).resolve().parent.parent
REPOSITORY = BENCHMARKS.parent
SHARP = BENCHMARKS / "node_modules" / "sharp"


@dataclass(frozen=True)
class Program:
    name: str
    command: str
    version_arguments: tuple
    debian_package: str


KNOWN = {
    program.name: program
    for program in (
        Program("cwebp", "cwebp", ("-version",), "webp"),
        Program("exiftool", "exiftool", ("-ver",), "libimage-exiftool-perl"),
        Program("exiv2", "exiv2", ("--version",), "exiv2"),
        Program("fd", "fdfind", ("--version",), "fd-find"),
        Program("mmv", "mmv", ("--help",), "mmv"),
        Program("node", "node", ("--version",), "nodejs"),
        Program("python3", "python3", ("--version",), "python3"),
        Program("qpdf", "qpdf", ("--version",), "qpdf"),
        Program("vips", "vips", ("--version",), "libvips-tools"),
        Program("vipsthumbnail", "vipsthumbnail", ("--vips-version",), "libvips-tools"),
        Program("img2pdf", "img2pdf", ("--version",), "img2pdf"),
        Program("pdfunite", "pdfunite", ("-v",), "poppler-utils"),
        Program("pdftoppm", "pdftoppm", ("-v",), "poppler-utils"),
        Program("mutool", "mutool", ("-v",), "mupdf-tools"),
        Program("gs", "gs", ("--version",), "ghostscript"),
        Program("cp", "cp", ("--version",), "coreutils"),
    )
}


def path_of(name: str) -> str | None:
    return shutil.which(KNOWN[name].command)


def first_line(command) -> str:
    answer = subprocess.run(command, capture_output=True, text=True, check=False)
    lines = (answer.stdout + answer.stderr).strip().splitlines()
    return lines[0].strip() if lines else "unknown"


def version_of(name: str) -> str:
    if name == "sharp":
        script = "const s = await import('sharp'); console.log(s.default.versions.sharp, 'libvips', s.default.versions.vips)"
        return subprocess.run(
            [path_of("node"), "--input-type=module", "-e", script], cwd=BENCHMARKS, capture_output=True, text=True, check=False
        ).stdout.strip()
    if name == "mmv":  # It does not tell by itself.
        return first_line(["dpkg-query", "-W", "-f", "${Version}", KNOWN[name].debian_package])
    return first_line([path_of(name), *KNOWN[name].version_arguments])


def is_installed(name: str) -> bool:
    if name == "sharp":
        return SHARP.is_dir() and path_of("node") is not None
    return path_of(name) is not None


def how_to_install(name: str) -> str:
    if name == "sharp":
        return "npm install --no-package-lock in Benchmarks/"
    return f"Debian package {KNOWN[name].debian_package}"


def install_sharp() -> None:
    """From npm, beside this harness; without npm, or without a way to the registry, it stays away."""
    npm = shutil.which("npm")
    if npm and not SHARP.is_dir():
        command = [npm, "install", "--no-package-lock", "--no-audit", "--no-fund", "--silent"]
        subprocess.run(command, cwd=BENCHMARKS, capture_output=True, check=False)
