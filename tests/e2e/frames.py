# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT

"""Where the frames of windows are, from the X server itself: no tool of the tests tells."""

import ctypes
from ctypes import byref, c_char_p, c_int, c_uint, c_ulong, c_void_p


def _load():
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = c_void_p
    x11.XOpenDisplay.argtypes = [c_char_p]
    x11.XCloseDisplay.argtypes = [c_void_p]
    x11.XFree.argtypes = [c_void_p]
    x11.XQueryTree.argtypes = [c_void_p, c_ulong] + [c_void_p] * 4
    x11.XGetGeometry.argtypes = [c_void_p, c_ulong] + [c_void_p] * 7
    return x11


def frame_of(display_name, window):
    """Left, top, width and height of the window's frame."""
    x11 = _load()
    display = x11.XOpenDisplay(display_name.encode())
    try:
        while True:
            root, parent = _parent_of(x11, display, window)
            if parent == root:
                return _geometry_of(x11, display, window)
            window = parent
    finally:
        x11.XCloseDisplay(display)


def _parent_of(x11, display, window):
    root, parent, count = c_ulong(), c_ulong(), c_uint()
    children = c_void_p()
    x11.XQueryTree(display, window, byref(root), byref(parent), byref(children), byref(count))
    if children:
        x11.XFree(children)
    return root.value, parent.value


def _geometry_of(x11, display, window):
    root, left, top = c_ulong(), c_int(), c_int()
    width, height, border, depth = c_uint(), c_uint(), c_uint(), c_uint()
    x11.XGetGeometry(display, window, byref(root), byref(left), byref(top), byref(width), byref(height), byref(border),
                     byref(depth))
    return left.value, top.value, width.value, height.value
