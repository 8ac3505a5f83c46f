// Drops a file on the window under a point of the screen: drop_file X Y FILE
#include "dropping.h"

#include <cstdio>
#include <cstdlib>

int main(int count, char** arguments) {
    if (count != 4)
        return 2;
    const POINT at = {std::atoi(arguments[1]), std::atoi(arguments[2])};
    HWND target = ::WindowFromPoint(at);
    while (target && !(::GetWindowLongA(target, GWL_EXSTYLE) & WS_EX_ACCEPTFILES))
        target = ::GetParent(target);
    if (!target) {
        std::fputs("nothing takes files there\n", stderr);
        return 1;
    }
    return drop(target, arguments[3]) ? 0 : 1;
}
