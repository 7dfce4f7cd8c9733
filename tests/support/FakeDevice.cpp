// SPDX-License-Identifier: MIT
#include "tests/support/FakeDevice.h"

#include <gtest/gtest.h>

#include <X11/Xatom.h>
#include <X11/extensions/XInput.h>
#include <X11/extensions/XInput2.h>
#include <X11/extensions/XTest.h>
#include <cstring>

struct FakeDevice::Connection {
    Display* display = nullptr;
    XDevice* device = nullptr;

    void sync() const { XSync(display, False); }
};

FakeDevice::FakeDevice(Kind kind) : connection_(std::make_unique<Connection>()) {
    Display* display = connection_->display = XOpenDisplay(nullptr);
    if (!display) {
        ADD_FAILURE() << "no display";
        return;
    }
    const char* wanted = kind == Kind::Keyboard ? "Xvfb keyboard" : "Xvfb mouse";
    int count = 0;
    XDeviceInfo* devices = XListInputDevices(display, &count);
    for (int i = 0; i < count; ++i)
        if (std::strcmp(devices[i].name, wanted) == 0)
            connection_->device = XOpenDevice(display, devices[i].id);
    XFreeDeviceList(devices);
    EXPECT_TRUE(connection_->device) << wanted;
}

FakeDevice::~FakeDevice() {
    if (connection_->display)
        XCloseDisplay(connection_->display);
}

void FakeDevice::key(int code, bool isDown) {
    XTestFakeDeviceKeyEvent(connection_->display, connection_->device, static_cast<unsigned>(code),
                            isDown, nullptr, 0, CurrentTime);
    connection_->sync();
}

void FakeDevice::button(int number, bool isDown) {
    XTestFakeDeviceButtonEvent(connection_->display, connection_->device,
                               static_cast<unsigned>(number), isDown, nullptr, 0, CurrentTime);
    connection_->sync();
}

void FakeDevice::move(int right, int down) {
    int axes[] = {right, down};
    XTestFakeDeviceMotionEvent(connection_->display, connection_->device, True, 0, axes, 2,
                               CurrentTime);
    connection_->sync();
}

void FakeDevice::setEnabled(bool isEnabled) {
    Display* display = connection_->display;
    unsigned char value = isEnabled ? 1 : 0;
    XIChangeProperty(display, static_cast<int>(connection_->device->device_id),
                     XInternAtom(display, "Device Enabled", False), XA_INTEGER, 8,
                     XIPropModeReplace, &value, 1);
    connection_->sync();
}
