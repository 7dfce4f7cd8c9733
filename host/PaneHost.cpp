// SPDX-License-Identifier: MIT
#include "host/PaneHost.h"

#include "host/DesktopApplication.h"
#include "host/PaneWindow.h"
#include "host/Sections.h"
#include "host/StartupNotification.h"
#include "host/Troubles.h"
#include "platform/AppKit/ClassRegistry.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreServices/AppleEvents.h"
#include "platform/HIToolbox/NibRequirement.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

/// From storing the settings to the end of the program. The bus usually needs a millisecond.
constexpr useconds_t kMostMicrosecondsToLeave = 700'000;

PaneHost* openHost = nullptr; // for the exit handler
int exitStatus = EXIT_SUCCESS;

/// Ends the program even if the display server or the bus hangs.
void leaveInTime() {
    std::signal(SIGALRM, [](int) { _exit(exitStatus); });
    ualarm(kMostMicrosecondsToLeave, 0);
}

} // namespace

PaneHost::PaneHost() = default;

PaneHost::~PaneHost() {
    if (openHost == this)
        openHost = nullptr;
}

bool PaneHost::load(const std::string& path, std::vector<std::string>& errors) {
    const auto fail = [&](const std::string& file, const std::string& message) {
        errors.push_back(file + ": " + message);
        return false;
    };
    bundle_ = CFBundleCreate(CFURLCreateFromFileSystemRepresentation(path.c_str(), true).get());
    const std::string info = path + "/Contents/Info.plist";
    if (!bundle_)
        return fail(info, "can't be read as a bundle's description");
    if (!CFBundleCopyExecutableURL(bundle_.get()))
        return fail(info, "CFBundleExecutable '" + infoText("CFBundleExecutable") +
                              "' names no file in Contents/Linux");
    std::string reason;
    if (!CFBundleLoadExecutable(bundle_.get(), &reason))
        return fail(path, reason);

    const std::string className = infoText("NSPrincipalClass");
    const RegisteredClass* entry = NSClassFromString(className);
    if (!entry)
        return fail(info, "NSPrincipalClass '" + className + "' is no class of the bundle");
    std::unique_ptr<NSObject> object(entry->make());
    auto* pane = dynamic_cast<NSPreferencePane*>(object.get());
    if (!pane)
        return fail(info, "NSPrincipalClass '" + className + "' is no NSPreferencePane");
    object.release();
    pane_.reset(pane);
    pane_->initWithBundle(bundle_.get());
    return pane_->loadMainView(errors);
}

bool PaneHost::checkWindows(std::vector<std::string>& errors) {
    return checkCarbonNibs(bundle_.get(), errors);
}

void PaneHost::open() {
    pane_->mainViewDidLoad();
    window_ = std::make_unique<PaneWindow>(pane_->mainView());
    const std::string label = infoText("NSPrefPaneIconLabel");
    window_->setWindowTitle(
        QString::fromStdString(label.empty() ? infoText("CFBundleName") : label));
    window_->onClosed = [this] { close(); };
    window_->onShown = [this] {
        if (!isSelected_)
            return;
        pane_->didSelect();
        tellOfUnusableFiles();
    };

    isSelected_ = true;
    pane_->willSelect();
    tellOfLaunches();
    tellOfUnkeptChanges();
    // After willSelect: what the pane has set up by then still exists when this is called.
    openHost = this;
    std::atexit(endAtExit);
    window_->open();
}

/// What is shown is the last section from now on, for whoever asks for it.
void PaneHost::bringToFront() {
    keepSection(pane_->mainView()->widget());
    window_->bringToFront();
}

void PaneHost::comply(const ShowRequest& request) {
    if (!request.section.isEmpty() && !showSection(pane_->mainView()->widget(), request.section))
        std::fprintf(
            stderr, "korvex-preferences: %s\n",
            filled(localized("Host", "there is no section '%1'"), {request.section.toStdString()})
                .c_str());
    completeStartup(window_->windowHandle(), request.startupID);
}

bool PaneHost::store() {
    if (pane_->commitEditing()) {
        withdrawNotSaved();
        return true;
    }
    std::fprintf(
        stderr, "korvex-preferences: %s\n",
        filled(localized("Host", "the settings aren't saved: %1"), {whyNotSaved()}).c_str());
    tellNotSaved([this] { close(); }, [this] { end(); });
    return false;
}

void PaneHost::close() {
    if (store())
        end();
}

void PaneHost::end() {
    if (!isSelected_)
        return;
    exitStatus = store() ? EXIT_SUCCESS : EXIT_FAILURE;
    leaveInTime();
    keepSection(pane_->mainView()->widget());
    deselect();
    window_->hide();
    QCoreApplication::exit(exitStatus);
}

void PaneHost::deselect() {
    isSelected_ = false;
    areWindowsLeft = true;
    pane_->didUnselect();
    flushSentEvents();
}

// Qt calls exit() when the display server is gone. Windows can't be used then, but the settings can
// still be saved.
void PaneHost::endAtExit() {
    if (!openHost || !openHost->isSelected_)
        return;
    openHost->store();
    openHost->deselect();
}

std::string PaneHost::infoText(const char* key) const {
    const auto* text =
        dynamicCFCast<CFString>(CFBundleGetValueForInfoDictionaryKey(bundle_.get(), CFSTR(key)));
    return text ? toUTF8(text) : std::string();
}
