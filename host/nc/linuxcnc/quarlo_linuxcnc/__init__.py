# SPDX-License-Identifier: GPL-2.0-or-later
"""The way from the host platform to LinuxCNC."""
