#include "src/prefpane/PointerChooser.h"

#include "platform/AppKit/NSTextField.h"
#include "src/prefpane/Daemon.h"
#include "src/prefpane/NumberController.h"
#include "src/prefpane/ptrman.h"
#include "src/ptrutil.h"

#include <algorithm>

static_assert(sizeof prefs.pointerImageName == kMaxPointerNameLength + 1);

void PointerChooser::bumpPointer(bool forward) {
    char name[sizeof prefs.pointerImageName] = {}; // so that nothing of a longer name stays behind
    if (!ptrmanGetNextPointer(prefs.pointerImageName, forward, name))
        return;
    std::copy(std::begin(name), std::end(name), prefs.pointerImageName);
    changes_.changed(kChangePointer);
}

void PointerChooser::updatePointerName() {
    PointerImage pointer;
    const bool isThere =
        ptrutilLoadPointerFromBundle(daemonMainBundle(), prefs.pointerImageName, &pointer);
    pointerName->setStringValue(isThere ? ptrutilPointerTitle(prefs.pointerImageName) : "None");
}
