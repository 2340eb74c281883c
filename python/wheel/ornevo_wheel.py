# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""What pip calls to build the module (PEP 517): CMake does the work, and the result is packed as a wheel.

Of our own, since Debian has no build backend for CMake, and one from elsewhere would have to be fetched first.
"""

import base64
import hashlib
import pathlib
import re
import shutil
import subprocess
import sys
import sysconfig
import tempfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    with tempfile.TemporaryDirectory() as folder:
        installed = pathlib.Path(folder) / "installed"
        _build(pathlib.Path(folder) / "build", installed)
        files = {path.relative_to(installed).as_posix(): path.read_bytes() for path in installed.rglob("*") if path.is_file()}
    name = f"ornevo-{_version()}-{_tag()}.whl"
    _pack(pathlib.Path(wheel_directory) / name, {**files, **_metadata()})
    return name


def prepare_metadata_for_build_wheel(metadata_directory, config_settings=None):
    """So that pip need not build all of it only to read what it is called."""
    for name, content in _metadata().items():
        path = pathlib.Path(metadata_directory) / name
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(content)
    return f"ornevo-{_version()}.dist-info"


def build_sdist(sdist_directory, config_settings=None):
    raise NotImplementedError("the sources are the repository")


def _build(build, installed):
    generator = ["-G", "Ninja"] if shutil.which("ninja") else []
    options = {
        "CMAKE_BUILD_TYPE": "Release",
        "BUILD_TESTING": "OFF",
        "ORNEVO_CORE_ONLY": "ON",
        "ORNEVO_PYTHON": "ON",
        "ORNEVO_PYTHON_DIR": ".",
        "Python_EXECUTABLE": sys.executable,
    }
    definitions = [f"-D{key}={value}" for key, value in options.items()]
    for command in (
        ["cmake", "-S", ROOT, "-B", build, *generator, *definitions],
        ["cmake", "--build", build, "--parallel", "--target", "ornevo_python"],
        ["cmake", "--install", build, "--strip", "--component", "python3-ornevo", "--prefix", installed],
    ):
        subprocess.run(command, check=True)


def _version():
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(Ornevo VERSION ([0-9.]+)", text).group(1)


def _tag():
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    return f"{python}-{python}-{re.sub(r'[-.]', '_', sysconfig.get_platform())}"


def _metadata():
    folder = f"ornevo-{_version()}.dist-info"
    metadata = [
        "Metadata-Version: 2.1",
        "Name: ornevo",
        f"Version: {_version()}",
        "Summary: Cut objects out of photographs: numpy arrays in, numpy arrays out",
        "License: MIT",
        "Requires-Python: >=3.9",
        "Requires-Dist: numpy",
        "Description-Content-Type: text/markdown",
        "",
        (ROOT / "docs/python.md").read_text(encoding="utf-8"),
    ]
    wheel = ["Wheel-Version: 1.0", "Generator: ornevo_wheel", "Root-Is-Purelib: false", f"Tag: {_tag()}", ""]
    return {
        f"{folder}/METADATA": "\n".join(metadata).encode(),
        f"{folder}/WHEEL": "\n".join(wheel).encode(),
        f"{folder}/LICENSE": (ROOT / "LICENSE").read_bytes(),
    }


def _pack(path, files):
    record = f"ornevo-{_version()}.dist-info/RECORD"
    lines = []
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as wheel:
        for name, content in sorted(files.items()):
            wheel.writestr(name, content)
            digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
            lines.append(f"{name},sha256={digest},{len(content)}")
        wheel.writestr(record, "\n".join([*lines, f"{record},,", ""]))
