#include "src/prefpane/VLDKorvexPane.h"

#include "platform/HIToolbox/AppleHelp.h"
#include "src/AXReq/axreq.h"
#include "src/openwindow.h"
#include "src/prefpane/Daemon.h"
#include "src/prefpane/PreferenceWrangler.h"
#include "src/prefpane/palutil.h"
#include "src/prefpane/ptrman.h"

NS_REGISTER_CLASS(VLDKorvexPane);

std::span<const NSOutlet> VLDKorvexPane::outlets() const {
    static constexpr NSOutlet table[] = {
        nsOutlet<&VLDKorvexPane::preferenceWrangler_>("preferenceWrangler"),
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
    daemonSetup(path.get());
    palutilSetup();
    prefsSetup();
    preferenceWrangler_->setup();
    preferenceWrangler_->loadValues();
    preferenceWrangler_->beginHistory();
    openWindowSetup([](const SettingSet& settings, const PrefsRecord& record) {
        theWrangler->adopt(settings, record);
    });
}

void VLDKorvexPane::didSelect() {
    const auto identifier = CFStringCreateMutable(0);
    CFStringAppend(identifier.get(), kAgentBundleID);
    CFStringAppend(identifier.get(), CFSTR(".PrefsPane"));
    axReqCheckAXEnabled(CFBundleGetBundleWithIdentifier(identifier.get()),
                        mainView()->window().windowRef());
}

bool VLDKorvexPane::commitEditing() {
    prefsFlushChanges();
    return true;
}

void VLDKorvexPane::didUnselect() {
    openWindowCleanup();
    axReqCancel();
    ptrmanCleanup();
    palutilCleanup();
    prefsCleanup();
    daemonCleanup();
}
