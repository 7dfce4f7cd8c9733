// SPDX-License-Identifier: MIT
// The least that an agent is: Qt's part of a program with a display, a grabbed key, and a click
// where the pointer is as soon as the key goes down. The key is the server's code in the argument.

#include <QByteArray>
#include <QGuiApplication>

#include <X11/extensions/XInput2.h>
#include <X11/extensions/XTest.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// The keyboard that is no master and not XTEST's.
int keyboardOf(Display* display) {
    int count = 0, id = 0;
    XIDeviceInfo* devices = XIQueryDevice(display, XIAllDevices, &count);
    for (int i = 0; i < count; ++i)
        if (devices[i].use == XISlaveKeyboard && !std::strstr(devices[i].name, "XTEST"))
            id = devices[i].deviceid;
    XIFreeDeviceInfo(devices);
    return id;
}

void grab(Display* display, int key) {
    unsigned char bits[XIMaskLen(XI_LASTEVENT)] = {};
    XISetMask(bits, XI_KeyPress);
    XIEventMask mask = {keyboardOf(display), sizeof bits, bits};
    XIGrabModifiers any = {static_cast<int>(XIAnyModifier), 0};
    XIGrabKeycode(display, mask.deviceid, key, DefaultRootWindow(display), XIGrabModeAsync,
                  XIGrabModeAsync, False, &mask, 1, &any);
}

void click(Display* display) {
    XTestFakeButtonEvent(display, 1, True, CurrentTime);
    XTestFakeButtonEvent(display, 1, False, CurrentTime);
    XFlush(display);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QPA_PLATFORMTHEME", "generic");
    const QGuiApplication application(argc, argv);
    Display* display = XOpenDisplay(nullptr);
    if (argc < 2 || !display)
        return 1;
    int opcode = 0, event = 0, error = 0;
    XQueryExtension(display, "XInputExtension", &opcode, &event, &error);
    grab(display, std::atoi(argv[1]));
    XSync(display, False);
    std::puts("ready");
    std::fflush(stdout);
    for (XEvent next; XNextEvent(display, &next) == 0;)
        if (next.type == GenericEvent && next.xcookie.extension == opcode)
            click(display);
}
