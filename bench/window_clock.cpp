// Times a program's start as its user sees it: from the call to the first window on the screen, and to text
// in it. usage: window_clock [--runs N] COMMAND [ARGUMENT...]     (under an X display that shows nothing
// else)
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int GiveUpSeconds = 20;
constexpr int FewestInkPixels = 400; // dark pixels that a line or two of text have
constexpr auto Pause = std::chrono::milliseconds(2);

struct Seen {
    double window = 0; // milliseconds; 0 when it did not come
    double text = 0;
};

unsigned Lightness(unsigned long pixel) {
    return static_cast<unsigned>(((pixel >> 16 & 255) + (pixel >> 8 & 255) + (pixel & 255)) / 3);
}

// Looks at the middle of the screen, where an editor has its text.
void Look(Display* display, bool& window, bool& text) {
    const Window root = DefaultRootWindow(display);
    const int width = DisplayWidth(display, DefaultScreen(display));
    const int height = DisplayHeight(display, DefaultScreen(display));
    XImage* image = XGetImage(display, root, width / 12, height / 6, static_cast<unsigned>(width / 3),
                              static_cast<unsigned>(height / 3), AllPlanes, ZPixmap);
    if (image == nullptr) return;
    int light = 0;
    int ink = 0;
    for (int y = 0; y < image->height; y += 2)
        for (int x = 0; x < image->width; ++x) (Lightness(XGetPixel(image, x, y)) > 128 ? light : ink)++;
    window = light > ink;
    text = window && ink > FewestInkPixels;
    XDestroyImage(image);
}

Seen Run(Display* display, char** command) {
    const auto start = Clock::now();
    const auto since = [&] {
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    };
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        execvp(command[0], command);
        _exit(127);
    }
    Seen seen;
    while (since() < GiveUpSeconds * 1000.0 && seen.text == 0) {
        bool window = false;
        bool text = false;
        Look(display, window, text);
        if (window && seen.window == 0) seen.window = since();
        if (text) seen.text = since();
        // A window without a document has no text; a second is enough to be sure.
        if (seen.window != 0 && since() > seen.window + 1000) break;
        std::this_thread::sleep_for(Pause);
    }
    kill(-child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    return seen;
}

void Print(const char* what, std::vector<double> values) {
    std::sort(values.begin(), values.end());
    std::printf("%-8s min %.0f  median %.0f  max %.0f ms\n", what, values.front(), values[values.size() / 2],
                values.back());
}

} // namespace

int main(int count, char** arguments) {
    int runs = 7;
    int first = 1;
    if (count > 2 && std::string(arguments[1]) == "--runs") {
        runs = std::max(1, std::atoi(arguments[2]));
        first = 3;
    }
    Display* display = XOpenDisplay(nullptr);
    if (first >= count || display == nullptr) {
        std::fputs("usage: window_clock [--runs N] COMMAND [ARGUMENT...], under an X display\n", stderr);
        return 2;
    }
    Run(display, arguments + first); // warms the disk cache
    std::vector<double> windows;
    std::vector<double> texts;
    for (int run = 0; run < runs; ++run) {
        const Seen seen = Run(display, arguments + first);
        windows.push_back(seen.window);
        texts.push_back(seen.text);
    }
    Print("window", windows);
    Print("text", texts);
    return 0;
}
