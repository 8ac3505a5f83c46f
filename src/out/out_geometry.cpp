#include "out/wnt_out.h"

#include "out/geometry.h"

int CWntOut::intsin(unsigned short angle, int r) {
    return wnt::intsin(angle, r);
}

int CWntOut::intcos(unsigned short angle, int r) {
    return wnt::intcos(angle, r);
}

int CWntOut::muldiv(int a, int b, int c) {
    return wnt::muldiv(a, b, c);
}

int CWntOut::aproxroot(long n) {
    return wnt::aproxroot(n);
}

int CWntOut::getangle(int dy, int dx, int num, int den) {
    return wnt::getangle(dy, dx, num, den);
}

int CWntOut::points_center(int a, int b, int c) {
    return wnt::points_center(a, b, c);
}

void CWntOut::points_intersect(POINT* out, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    wnt::points_intersect(out, x1, y1, x2, y2, x3, y3, x4, y4);
}

int CWntOut::points_partclip(POINT* out, RECT* r, int x1, int y1, int x2, int y2) {
    return wnt::points_partclip(out, r, x1, y1, x2, y2);
}

int CWntOut::points_clipline(POINT* out, RECT* r, int x1, int y1, int x2, int y2) {
    return wnt::points_clipline(out, r, x1, y1, x2, y2);
}

int CWntOut::points_testclock(POINT* p, int sense) {
    return wnt::points_testclock(p, sense);
}

int CWntOut::points_testinpoly(int x, int y, POINT* poly, int n) {
    return wnt::points_testinpoly(x, y, poly, n);
}

int CWntOut::points_testincircle(int dx, int dy, int r) {
    return wnt::points_testincircle(dx, dy, r);
}

int CWntOut::points_testinrect(int x, int y, RECT r) {
    return this ? wnt::points_testinrect(x, y, r, ymax) : 0;
}

void CWntOut::calcpolywind(RECT* out, POINT* pts, int n) {
    wnt::calcpolywind(out, pts, n);
}
