#include "host/PaneHost.h"

#include "host/DesktopApplication.h"
#include "host/PaneWindow.h"
#include "host/Sections.h"
#include "host/StartupNotification.h"
#include "platform/HIToolbox/NibRequirement.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

PaneHost* openHost = nullptr; // for the exit handler

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
    const NSClassEntry* entry = NSClassFromString(className);
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
    window_ = std::make_unique<PaneWindow>(pane_->mainView()->widget());
    const std::string label = infoText("NSPrefPaneIconLabel");
    window_->setWindowTitle(
        QString::fromStdString(label.empty() ? infoText("CFBundleName") : label));
    window_->onClosed = [this] { putAway(); };
    window_->onShown = [this] {
        if (selected_)
            pane_->didSelect();
    };

    selected_ = true;
    pane_->willSelect();
    // After willSelect, so that what the pane has set up by then is still there when it is called.
    openHost = this;
    std::atexit(putAwayAtExit);
    window_->open();
}

void PaneHost::bringToFront() {
    window_->bringToFront();
}

void PaneHost::comply(const ShowRequest& request) {
    if (!request.section.isEmpty() && !showSection(pane_->mainView()->widget(), request.section))
        std::fprintf(stderr, "korvex-preferences: there is no section '%s'\n",
                     request.section.toUtf8().constData());
    completeStartup(window_->windowHandle(), request.startupID);
}

void PaneHost::putAway() {
    window_->hide();
    deselect();
    QCoreApplication::quit();
}

void PaneHost::deselect() {
    if (!std::exchange(selected_, false))
        return;
    pane_->didUnselect();
}

// Qt leaves by exit() when the display's server is gone. The widgets are as good as gone then, but
// the settings can still be saved.
void PaneHost::putAwayAtExit() {
    if (openHost)
        openHost->deselect();
}

std::string PaneHost::infoText(const char* key) const {
    const auto* text =
        dynamicCFCast<CFString>(CFBundleGetValueForInfoDictionaryKey(bundle_.get(), CFSTR(key)));
    return text ? CFStringToUTF8(text) : std::string();
}
