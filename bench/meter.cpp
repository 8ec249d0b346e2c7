// SPDX-License-Identifier: MIT
// Measures any viewer on the display $DISPLAY with the pictures of scripts/bench. The middle of
// each picture has one of six colours, in the order of the list; the meter watches the pixel in the
// middle of the largest window.
//
// usage: zv_meter KEY PAGES STEP-KEY STEPS COMMAND...
//
// Starts the command, waits for the first picture, presses KEY for each of PAGES pages and
// STEP-KEY for each of STEPS redraws, and ends the command with SIGTERM. The keys are X keysym
// names. Prints one line for each value: "first MS" from the start to the first picture, "page MS"
// from a key press to its picture, "step MS" as the mean processor time of a redraw, "memory MIB"
// as the peak of the resident memory, and "cpu MS" for the whole run without the redraws.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr std::array<std::array<int, 3>, 6> colors = {
    {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 0}, {255, 0, 255}, {0, 255, 255}}};
constexpr int tolerance = 40;  // of a channel: pictures are scaled and compressed
constexpr auto time_limit = 60s;

Display* g_display;

double milliseconds(steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

/// Finds the middle of the largest visible window. Returns false if there is no window.
bool find_middle(int& x, int& y) {
    Window root = DefaultRootWindow(g_display);
    Window parent = None;
    Window* children = nullptr;
    unsigned count = 0;
    if (XQueryTree(g_display, root, &root, &parent, &children, &count) == 0) {
        return false;
    }
    int area = 10000;  // the smallest window that counts
    bool is_found = false;
    for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes window{};
        if (XGetWindowAttributes(g_display, children[i], &window) != 0 &&
            window.map_state == IsViewable && window.c_class == InputOutput &&
            window.width * window.height > area) {
            area = window.width * window.height;
            x = window.x + window.width / 2;
            y = window.y + window.height / 2;
            is_found = true;
        }
    }
    XFree(children);
    return is_found;
}

bool shows(std::array<int, 3> const& color) {
    int x = 0;
    int y = 0;
    if (!find_middle(x, y)) {
        return false;
    }
    XImage* const image =
        XGetImage(g_display, DefaultRootWindow(g_display), x, y, 1, 1, AllPlanes, ZPixmap);
    if (image == nullptr) {
        return false;
    }
    unsigned long const pixel = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    for (unsigned channel = 0; channel < 3; ++channel) {
        int const value = static_cast<int>(pixel >> (16 - 8 * channel) & 0xFF);
        if (std::abs(value - color[channel]) > tolerance) {
            return false;
        }
    }
    return true;
}

/// Prints the milliseconds from `start` until the picture with the number `place` is visible.
void measure(char const* name, steady_clock::time_point start, unsigned place) {
    while (!shows(colors[place % colors.size()])) {
        if (steady_clock::now() - start > time_limit) {
            std::printf("%s timeout\n", name);
            return;
        }
        std::this_thread::sleep_for(500us);
    }
    std::printf("%s %.2f\n", name, milliseconds(steady_clock::now() - start));
}

void press(char const* key) {
    KeyCode const code = XKeysymToKeycode(g_display, XStringToKeysym(key));
    XTestFakeKeyEvent(g_display, code, True, CurrentTime);
    XTestFakeKeyEvent(g_display, code, False, CurrentTime);
    XFlush(g_display);
}

/// Returns the processor time, in milliseconds, that a process has used.
double processor_time(pid_t process) {
    std::ifstream in("/proc/" + std::to_string(process) + "/stat");
    std::string word;
    std::getline(in, word, ')');  // the name can contain blanks
    for (int i = 0; i < 11; ++i) {
        in >> word;
    }
    double user = 0;
    double system = 0;
    in >> user >> system;
    return (user + system) * 1000 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Waits until the process has used no processor time for a while. Returns the time it has used.
double settled_processor_time(pid_t process) {
    double time = processor_time(process);
    for (int quiet = 0; quiet < 10; ++quiet) {
        std::this_thread::sleep_for(30ms);
        double const now = processor_time(process);
        if (now > time) {
            time = now;
            quiet = 0;
        }
    }
    return time;
}

int ignore_errors(Display*, XErrorEvent*) {
    return 0;  // a window can vanish between two requests
}

}  // namespace

int main(int argc, char** argv) {
    g_display = argc > 5 ? XOpenDisplay(nullptr) : nullptr;
    if (g_display == nullptr) {
        std::fputs("usage: zv_meter KEY PAGES STEP-KEY STEPS COMMAND...\n", stderr);
        return 2;
    }
    XSetErrorHandler(ignore_errors);
    auto const start = steady_clock::now();
    pid_t const process = fork();
    if (process == 0) {
        execvp(argv[5], argv + 5);
        _exit(127);
    }
    measure("first", start, 0);
    std::this_thread::sleep_for(300ms);
    for (unsigned page = 1; page <= std::strtoul(argv[2], nullptr, 10); ++page) {
        auto const pressed = steady_clock::now();
        press(argv[1]);
        measure("page", pressed, page);
        std::this_thread::sleep_for(100ms);
    }
    unsigned long const steps = std::strtoul(argv[4], nullptr, 10);
    double const before = settled_processor_time(process);
    for (unsigned long step = 0; step < steps; ++step) {
        press(argv[3]);
        std::this_thread::sleep_for(60ms);  // so that each step is drawn
    }
    double const after = settled_processor_time(process);
    if (steps != 0) {
        std::printf("step %.2f\n", (after - before) / static_cast<double>(steps));
    }
    kill(process, SIGTERM);
    int status = 0;
    rusage usage{};
    wait4(process, &status, 0, &usage);
    std::printf("memory %.1f\ncpu %.0f\n", static_cast<double>(usage.ru_maxrss) / 1024, before);
    return 0;
}
