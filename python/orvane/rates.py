"""Frame rates as fractions."""

from __future__ import annotations

from fractions import Fraction
from numbers import Rational

LARGEST = 2**53


def rate_pair(rate: Fraction | float | str) -> tuple[int, int]:
    """Numerator and denominator; of a float, those of its shortest text."""
    fraction = Fraction(rate if isinstance(rate, Rational) else str(rate))
    if not 1 <= fraction or max(fraction.numerator, fraction.denominator) > LARGEST:
        raise ValueError(f"rate is {rate}; it is a number of frames per second, 1 or more")
    if fraction >= 2**31:
        raise ValueError(f"rate is {rate}; it is below 2147483648")
    return fraction.numerator, fraction.denominator


def rate_text(rate: Fraction) -> str:
    """As a file says it: exactly, where that is a decimal number of up to 15 digits."""
    return f"{float(rate):.15g}"
