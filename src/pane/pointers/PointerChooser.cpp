// SPDX-License-Identifier: MIT
#include "src/pane/pointers/PointerChooser.h"

#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/controls/NumberController.h"
#include "src/link/Daemon.h"
#include "src/pane/pointers/ptrman.h"

#include <algorithm>

static_assert(sizeof prefs.pointerImageName == kMaxPointerNameLength + 1);

void PointerChooser::load() {
    pointers_.clear();
    for (int i = 0; i < ptrmanCountPointers(); ++i) {
        const std::string& name = ptrmanPointerAt(i);
        PointerImage pointer;
        ptrutilLoadPointerFromBundle(daemonMainBundle(), name.c_str(), &pointer);
        pointers_.push_back({name, pointer.image});
    }
    updatePointerName();
}

void PointerChooser::take(const std::string& name) {
    // So that no rest of a longer name stays.
    std::fill(std::begin(prefs.pointerImageName), std::end(prefs.pointerImageName), '\0');
    std::copy(name.begin(), name.end(), prefs.pointerImageName);
    changes_.changed(kChangePointer);
}

void PointerChooser::bumpPointer(bool forward) {
    char name[sizeof prefs.pointerImageName];
    if (ptrmanGetNextPointer(prefs.pointerImageName, forward, name))
        take(name);
}

void PointerChooser::updatePointerName() {
    PointerImage pointer;
    const bool isThere =
        ptrutilLoadPointerFromBundle(daemonMainBundle(), prefs.pointerImageName, &pointer);
    pointerName->setStringValue(isThere ? ptrutilPointerTitle(prefs.pointerImageName)
                                        : localized("Pointer", "None"));
    pointerGrid->reload();
}

std::string PointerChooser::choiceName(int index) const {
    return ptrutilPointerTitle(at(index).name.c_str());
}

bool PointerChooser::isChosen(int index) const {
    return at(index).name == prefs.pointerImageName;
}

/// Centred, and smaller where there is less room.
void PointerChooser::drawChoice(int index, const Rect& bounds) const {
    const CGImage* picture = at(index).picture.get();
    if (!picture)
        return;
    const auto context = NSGraphicsContext::currentContext()->graphicsPort();
    const auto width = static_cast<CGFloat>(CGImageGetWidth(picture));
    const auto height = static_cast<CGFloat>(CGImageGetHeight(picture));
    const auto room =
        static_cast<CGFloat>(std::min(bounds.right - bounds.left, bounds.bottom - bounds.top) - 4);
    const CGFloat scale = std::min(CGFloat{1}, room / std::max(width, height));
    const CGFloat x = static_cast<CGFloat>(bounds.left + bounds.right) / 2;
    const CGFloat y = static_cast<CGFloat>(bounds.top + bounds.bottom) / 2;
    // Images are upright where y grows upward.
    CGContextTranslateCTM(context.get(), 0, 2 * y);
    CGContextScaleCTM(context.get(), 1, -1);
    CGContextDrawImage(
        context.get(),
        CGRectMake(x - width * scale / 2, y - height * scale / 2, width * scale, height * scale),
        picture);
}

void PointerChooser::choose(int index) {
    take(at(index).name);
}
