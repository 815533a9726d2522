#!/usr/bin/env python3
"""Writes the X display's root window as a PNG: x_shot.py OUT.png (reads $DISPLAY).

The real-window scenarios use it to keep a picture of what a player saw at each step."""
import ctypes
import struct
import sys
import zlib

x11 = ctypes.cdll.LoadLibrary("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x11.XGetImage.restype = ctypes.c_void_p
x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int,
                          ctypes.c_uint, ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
x11.XGetPixel.restype = ctypes.c_ulong
x11.XGetPixel.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int]
x11.XDisplayWidth.argtypes = [ctypes.c_void_p, ctypes.c_int]
x11.XDisplayHeight.argtypes = [ctypes.c_void_p, ctypes.c_int]

display = x11.XOpenDisplay(None)
if not display:
    sys.exit("x_shot: no display")
width = x11.XDisplayWidth(display, 0)
height = x11.XDisplayHeight(display, 0)
image = x11.XGetImage(display, x11.XDefaultRootWindow(display), 0, 0, width, height,
                      0xFFFFFFFF, 2)  # ZPixmap
rows = []
for y in range(height):
    row = bytearray([0])
    for x in range(width):
        p = x11.XGetPixel(image, x, y)
        row += bytes(((p >> 16) & 255, (p >> 8) & 255, p & 255))
    rows.append(bytes(row))


def chunk(kind, data):
    return (struct.pack(">I", len(data)) + kind + data +
            struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF))


with open(sys.argv[1], "wb") as out:
    out.write(b"\x89PNG\r\n\x1a\n" +
              chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
              chunk(b"IDAT", zlib.compress(b"".join(rows))) + chunk(b"IEND", b""))
