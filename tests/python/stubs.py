# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The type stubs: that they agree with the module, and that mypy tells right calls from wrong ones.

    stubs.py CACHE-FOLDER
"""

import os
import pathlib
import subprocess
import sys

import ornevo

cache = sys.argv[1]
package = pathlib.Path(ornevo.__file__).parent
assert (package / "py.typed").exists()
checks = {
    "calls": [sys.executable, "-m", "mypy", "--strict", "--warn-unused-ignores", f"--cache-dir={cache}", "typed_use.py"],
    "module": [sys.executable, "-m", "mypy.stubtest", "ornevo", "--ignore-missing-stub"],
}
# The folders of PYTHONPATH are sources to mypy, as are those of MYPYPATH, which stubtest reads.
environment = {**os.environ, "MYPYPATH": str(package.parent), "MYPY_CACHE_DIR": cache}
failed = [name for name, command in checks.items() if subprocess.run(command, env=environment, check=False).returncode]
sys.exit(f"the stubs are wrong: {failed}" if failed else 0)
