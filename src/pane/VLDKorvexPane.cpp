// SPDX-License-Identifier: MIT
#include "src/pane/VLDKorvexPane.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/AppleHelp.h"
#include "src/firststeps/FirstStepsPage.h"
#include "src/link/Daemon.h"
#include "src/link/openwindow.h"
#include "src/notice/axreq.h"
#include "src/pane/PreferenceWrangler.h"
#include "src/pane/pointers/ptrman.h"
#include "src/scan/palutil.h"
#include "src/store/recovery.h"
#include "src/tryout/TryPage.h"

REGISTER_CLASS(VLDKorvexPane);

namespace {

/// When the stored settings are shown, takes over what a crashed visit has left.
void takeRecovered(PreferenceWrangler& wrangler) {
    PrefsRecord record = prefs;
    const SettingSet recovered = recoveryTakeOver(record);
    if (recovered.none())
        return recoveryForget();
    wrangler.adopt(recovered, record);
    tellUser("recovery",
             {.kind = UserMessage::Kind::Note,
              .text = localized("Recovery", "Your last visit here ended before it could save. Its "
                                            "changes are here again.")});
}

} // namespace

std::span<const Outlet> VLDKorvexPane::outlets() const {
    static constexpr Outlet table[] = {
        outletRow<&VLDKorvexPane::preferenceWrangler_>("preferenceWrangler"),
    };
    return table;
}

void VLDKorvexPane::mainViewDidLoad() {
    if (!bundle())
        return;
    const auto url = CFBundleCopyBundleURL(bundle());
    FSRef ref;
    if (url && CFURLGetFSRef(url.get(), &ref) && AHRegisterHelpBook(&ref) == noErr)
        preferenceWrangler_->setHelpBookName(
            CFBundleGetValueForInfoDictionaryKey(bundle(), CFSTR("CFBundleHelpBookName")));
}

void VLDKorvexPane::willSelect() {
    const auto agent = CFBundleCopyAuxiliaryExecutableURL(bundle(), CFSTR(kAgentApplicationName));
    const auto path = agent ? CFURLCopyFileSystemPath(agent.get()) : CFRef<CFString>();
    daemonReportTo({wranglerSetMasterOnOff, wranglerShowAgentState});
    daemonSetup(path.get());
    palutilSetup();
    prefsSetup();
    preferenceWrangler_->setup();
    preferenceWrangler_->loadValues();
    preferenceWrangler_->beginHistory();
    takeRecovered(*preferenceWrangler_);
    openWindowSetup([](const SettingSet& settings, const PrefsRecord& record) {
        theWrangler->changedElsewhere(settings, record);
    });
    firstStepsOffer(bundle(), mainView()->window(), *preferenceWrangler_);
}

void VLDKorvexPane::didSelect() {
    const auto identifier = CFStringCreateMutable(0);
    CFStringAppend(identifier.get(), kAgentBundleID);
    CFStringAppend(identifier.get(), CFSTR(".PrefsPane"));
    axReqCheckAXEnabled(CFBundleGetBundleWithIdentifier(identifier.get()),
                        mainView()->window().windowRef());
}

bool VLDKorvexPane::commitEditing() {
    if (const ChangeMask undone = preferenceWrangler_->settle()) {
        prefsWereChanged();
        daemonSendChanges(undone, true);
    }
    return prefsCommit();
}

void VLDKorvexPane::didUnselect() {
    openWindowCleanup();
    axReqCancel();
    ptrmanCleanup();
    palutilCleanup();
    prefsCleanup();
    daemonCleanup();
    // Last, since these touch the window.
    firstStepsClose();
    tryPageClose();
}
