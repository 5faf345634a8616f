#!/usr/bin/env python3
"""Writes src/base/CaseFolding.inc: simple case folding of every code point, as ranges.

A range maps first, first + step, ... up to last by adding delta. The source is Python's own Unicode
database, so nothing has to be fetched.
"""
import pathlib
import unicodedata


def fold(c):
    """Simple folding: one code point to one code point."""
    folded = chr(c).casefold()
    if len(folded) != 1:
        folded = chr(c).lower()
    if len(folded) != 1:
        return c
    # Characters whose lower case is shared by another letter that folds further (final sigma, ...).
    again = folded.casefold()
    return ord(again) if len(again) == 1 else ord(folded)


def main():
    pairs = [(c, fold(c)) for c in range(0x80, 0x110000)
             if not 0xD800 <= c < 0xE000 and fold(c) != c]
    ranges = []
    for c, f in pairs:
        delta = f - c
        if ranges:
            first, last, step, d = ranges[-1]
            if d == delta and (c - last == step or (first == last and c - last in (1, 2))):
                ranges[-1] = (first, c, c - last, d)
                continue
        ranges.append((c, c, 1, delta))
    lines = ["// Made by tools/make_case_folding.py from Unicode %s; do not edit."
             % unicodedata.unidata_version]
    lines += ["{0x%X, 0x%X, %d, %d}," % r for r in ranges]
    target = pathlib.Path(__file__).resolve().parent.parent / "src/base/CaseFolding.inc"
    target.write_text("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
