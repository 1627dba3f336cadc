// Comparing and printing the plain records of the interface.
#pragma once

#include <quarlo/types.h>

#include <cstdint>
#include <ostream>

inline bool operator==(const GPoint& a, const GPoint& b) {
    return a.x == b.x && a.y == b.y;
}

inline bool operator==(const GRect& a, const GRect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

inline bool operator==(const GLine& a, const GLine& b) {
    return a.x1 == b.x1 && a.y1 == b.y1 && a.x2 == b.x2 && a.y2 == b.y2;
}

inline std::ostream& operator<<(std::ostream& out, const GPoint& point) {
    return out << '(' << point.x << ", " << point.y << ')';
}

inline std::ostream& operator<<(std::ostream& out, const GRect& rect) {
    return out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom
               << ')';
}

inline std::ostream& operator<<(std::ostream& out, const GLine& line) {
    return out << '(' << line.x1 << ", " << line.y1 << ")-(" << line.x2 << ", " << line.y2 << ')';
}
