"""Regions: functions of a point that tell whether it lies inside. x grows to the right, y downwards."""
import math


def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) <= radius


def ring(cx, cy, radius, width):
    return lambda x, y: abs(math.hypot(x - cx, y - cy) - radius) <= width / 2


def stroke(x1, y1, x2, y2, width):
    def inside(x, y):
        dx, dy = x2 - x1, y2 - y1
        along = ((x - x1) * dx + (y - y1) * dy) / ((dx * dx + dy * dy) or 1)
        along = min(max(along, 0), 1)
        return math.hypot(x - x1 - along * dx, y - y1 - along * dy) <= width / 2
    return inside


def box(left, top, right, bottom):
    return lambda x, y: left <= x <= right and top <= y <= bottom


def polygon(*corners):
    def inside(x, y):
        odd = False
        for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
            if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
                odd = not odd
        return odd
    return inside


def union(*regions):
    return lambda x, y: any(region(x, y) for region in regions)


def transposed(region):
    return lambda x, y: region(y, x)


def arrow(x, y, dx, dy, length=7, half=5):
    """A solid arrow head with its tip at (x, y), pointing along the unit vector (dx, dy)."""
    bx, by = x - dx * length, y - dy * length
    return polygon((x, y), (bx - dy * half, by + dx * half), (bx + dy * half, by - dx * half))
