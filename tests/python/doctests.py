# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Runs the examples of the module's docstrings."""

import doctest
import sys

import ornevo

failed, attempted = doctest.testmod(ornevo)
documented = sum(">>> " in (getattr(ornevo, name).__doc__ or "") for name in ornevo.__all__)
print(f"{attempted} examples in {documented} functions, {failed} failed")
sys.exit(failed > 0 or documented < 6 or attempted < 30)
