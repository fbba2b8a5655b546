"""Prints the shape of a take, and where its markers are on average: positions.py FILE.trc"""

import sys

import numpy as np
import orvane


def main(path: str) -> None:
    take = orvane.read(path, format="trc", unit="m")
    print(take)
    print("shape:", take.points.shape)
    for name, place in zip(take.names, np.nanmean(take.points, axis=0)):
        print(f"{name:20} {place[0]:8.3f} {place[1]:8.3f} {place[2]:8.3f}")


if __name__ == "__main__":
    main(sys.argv[1])
